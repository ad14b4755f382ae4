#include "engine/page/tables.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "engine/averages.h"
#include "engine/exceedances.h"
#include "engine/page/html.h"
#include "engine/page/results.h"
#include "engine/report_rows.h"
#include "engine/side_file.h"
#include "engine/text.h"

namespace korventally::engine {
namespace {

// A heading or a cell; figures stand at the right edge.
struct Column {
  const char* heading;
  bool isFigure = true;
};

// What the table shows, and what its columns mean.
struct Caption {
  const char* id;
  std::string title, note;
};

class Table {
 public:
  Table(SideFile& file, const Caption& caption, const std::vector<Column>& columns)
      : file_(file), columns_(columns) {
    std::string head;
    for (const Column& column : columns_) {
      head += element(column.isFigure ? "th scope=\"col\" class=\"n\"" : "th scope=\"col\"",
                      sentence(column.heading));
    }
    const std::string id = caption.id;
    const std::string words =
        element("span", element("b", sentence(caption.title)) + " " + sentence(caption.note));
    // Whoever moves about with keys alone can scroll it too.
    file_.add("<div class=\"wide\" tabindex=\"0\" role=\"region\" aria-labelledby=\"" + id +
              "\">\n<table>" + element("caption id=\"" + id + "\"", words) +
              element("thead", element("tr", head)) + "\n<tbody>\n");
  }
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;
  ~Table() = default;

  // One text for each column; what is empty stays so.
  void row(std::initializer_list<std::string_view> cells) {
    std::string text;
    const Column* column = columns_.data();
    for (const std::string_view cell : cells) {
      text += element(column->isFigure ? "td class=\"n\"" : "td", escaped(cell));
      ++column;
    }
    file_.add(element("tr", text) + "\n");
  }

  // What belongs to the row above, as wide as the table.
  void below(std::string_view text) {
    if (text.empty()) return;
    const std::string tag = "td colspan=\"" + std::to_string(columns_.size()) + "\"";
    file_.add(element("tr class=\"below-row\"", element(tag, escaped(text))) + "\n");
  }

  // `more` says which rows are not there.
  void end(const std::string& more = {}) {
    file_.add("</tbody></table></div>\n");
    if (!more.empty()) file_.add(element("p", escaped(more)) + "\n");
  }

 private:
  SideFile& file_;
  std::vector<Column> columns_;
};

std::string othersText(const ExceedanceRow& row) {
  std::string text;
  for (const ShareRow& share : row.named) {
    text += (text.empty() ? "" : "; ") + share.group + " " + share.contribution + " " +
            share.percent + " %";
  }
  if (!row.rest.empty()) text += (text.empty() ? "" : "; ") + row.rest;
  return text;
}

void writeMaxima(const Results& results, SideFile& file) {
  Table table(file,
              {"maxima", "Highest averages (ug/m**3)",
               "1st: the largest of all receptors' highest values; 2nd: the largest of their "
               "second-highest values."},
              {{"Group", false},
               {"Rank", false},
               {"Value"},
               {"Receptor", false},
               {"X"},
               {"Y"},
               {"First hour", false}});
  for (const MaximumRow& row : maximumRows(results.names, results.judgement)) {
    table.row({row.group, row.rank, row.value, row.place.receptor, row.place.x, row.place.y,
               row.place.hour});
  }
  table.end();
}

void writePlaces(const Results& results, const Caption& caption, const std::vector<Place>& places,
                 const std::string& more, SideFile& file) {
  const auto& groups = results.names.theCase.groups;
  Table table(file, caption,
              {{"No"},
               {"Receptor", false},
               {"X"},
               {"Y"},
               {"First hour", false},
               {"Hours"},
               {groups[0].name.c_str()},
               {groups[1].name.c_str()},
               {"%"},
               {"SIL", false},
               {"Left over"}});
  std::size_t number = 0;
  for (const Place& place : places) {
    const ExceedanceRow row = exceedanceRow(results.names, results.averages, place);
    table.row({std::to_string(++number), row.place.receptor, row.place.x, row.place.y,
               row.place.hour, row.hours, row.total, row.facility, row.percent, row.significant,
               row.leftOver});
    table.below(othersText(row));
  }
  table.end(more);
}

void writeExceedances(const Results& results, SideFile& file) {
  const Exceedances& exceedances = results.judgement.exceedances;
  if (exceedances.count == 0) {
    file.add(element("p", "Exceedances: none.") + "\n");
    return;
  }
  const std::string note =
      "In ug/m**3, and % of the total. SIL: yes where the significant impact level is reached. "
      "Left over: the total less the background and all other groups. Below each exceedance the "
      "other groups, the largest contribution first.";
  writePlaces(results, {"exceedances", "Exceedances, the largest first", note}, exceedances.largest,
              moreText(exceedances.count, exceedances.largest.size(), "exceedance"), file);
  if (!hidesSignificant(results.names, results.averages, results.judgement)) return;
  const std::string& facility = results.names.theCase.groups[1].name;
  writePlaces(
      results,
      {"significant", "Significant exceedances, the largest contribution of " + facility + " first",
       note},
      exceedances.contributions,
      moreText(exceedances.significant, exceedances.contributions.size(), "significant exceedance"),
      file);
}

std::string inListFile(std::uint64_t rows) {
  if (rows <= kMostTableRows) return {};
  return "and " + counted(rows - kMostTableRows, "row") + " more, in the list file.";
}

void writeReceptors(const Results& results, SideFile& file) {
  const Exceedances& exceedances = results.judgement.exceedances;
  if (exceedances.count == 0) return;
  Table table(file,
              {"receptors", "Receptors that exceed (ug/m**3)",
               "Number of exceedances, and of significant ones; the highest total; the largest "
               "contribution of " +
                   results.names.theCase.groups[1].name + " to an exceedance."},
              {{"Receptor", false},
               {"X"},
               {"Y"},
               {"Number"},
               {"SIL"},
               {"Highest"},
               {"First hour", false},
               {"Contribution"},
               {"First hour", false}});
  std::size_t rows = 0;
  for (const AtReceptor& at : exceedances.atReceptors) {
    if (at.exceedances == 0 || ++rows > kMostTableRows) continue;
    const ReceptorRow row = receptorRow(results.names, at);
    table.row({row.highest.receptor, row.highest.x, row.highest.y, row.exceedances, row.significant,
               row.total, row.highest.hour, row.contribution, row.contributionHour});
  }
  table.end(inListFile(rows));
}

void writeLeftOut(const Results& results, SideFile& file) {
  const std::vector<Place>& places = results.judgement.leftOut;
  if (places.empty()) return;
  Table table(file, {"left-out", "Rank 1 averages left out (ug/m**3)", ""},
              {{"Year"}, {"Receptor", false}, {"X"}, {"Y"}, {"First hour", false}, {"Value"}});
  for (std::size_t i = 0; i < std::min(places.size(), kMostTableRows); ++i) {
    const LeftOutRow row = leftOutRow(results.names, results.judgement, places[i]);
    table.row({row.year, row.place.receptor, row.place.x, row.place.y, row.place.hour, row.value});
  }
  table.end(inListFile(places.size()));
}

}  // namespace

void writeTables(const Results& results, SideFile& file) {
  writeMaxima(results, file);
  writeExceedances(results, file);
  writeReceptors(results, file);
  writeLeftOut(results, file);
}

}  // namespace korventally::engine
