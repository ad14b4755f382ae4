// The texts of the results' tables, cell by cell: the list file puts them into columns, the page
// into its tables, so that both show the same figures.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/averages.h"
#include "engine/exceedances.h"
#include "engine/judgement.h"
#include "engine/report_results.h"

namespace korventally::engine {

/// The contribution in per cent of the total: "7.5", or ">999".
std::string percent(double contribution, double total);

/// A value of a group: a total beside the standard, the facility's beside the SIL.
std::string groupFigure(const Names& names, std::size_t group, double value);

struct PlaceRow {
  std::string receptor, x, y, hour;
};
PlaceRow placeRow(const Names& names, const Place& place);

struct MaximumRow {
  std::string group, rank, value;
  PlaceRow place;
};
/// Of each group the 1st and, with more than one average, the 2nd, which does not repeat the name.
std::vector<MaximumRow> maximumRows(const Names& names, const Judgement& judgement);

/// What a group behind the facility contributes to an exceedance.
struct ShareRow {
  std::string group, contribution, percent;
};

struct ExceedanceRow {
  PlaceRow place;
  std::string hours, total, facility, percent, significant, leftOver;
  std::vector<ShareRow> named;  ///< the groups that matter, the largest contribution first
  std::string rest;             ///< "and 31 groups, together 2.1 %", or empty
};
ExceedanceRow exceedanceRow(const Names& names, const Averages& averages, const Place& place);

/// True when the table of the largest exceedances lacks a significant one.
bool hidesSignificant(const Names& names, const Averages& averages, const Judgement& judgement);

/// "and 30 exceedances more, all of them smaller or equal."; empty when all are shown.
std::string moreText(std::uint64_t all, std::size_t shown, const char* noun);

struct ReceptorRow {
  PlaceRow highest;  ///< with the hour of the highest total
  std::string exceedances, significant, total, contribution, contributionHour;
};
/// Of a receptor that exceeds.
ReceptorRow receptorRow(const Names& names, const AtReceptor& at);

struct LeftOutRow {
  std::string year, value;
  PlaceRow place;
};
/// Of one of the judgement's `leftOut`.
LeftOutRow leftOutRow(const Names& names, const Judgement& judgement, const Place& place);

}  // namespace korventally::engine
