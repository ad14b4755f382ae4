#include "engine/page/page.h"

#include <string>

#include "engine/control_file.h"
#include "engine/page/bars.h"
#include "engine/page/html.h"
#include "engine/page/map.h"
#include "engine/page/results.h"
#include "engine/page/series.h"
#include "engine/page/style.h"
#include "engine/page/summary.h"
#include "engine/page/tables.h"
#include "engine/side_file.h"
#include "engine/version.h"

namespace korventally::engine {
namespace {

// Species, average and limits.
std::string caseInWords(const Results& results) {
  const Case& theCase = results.names.theCase;
  return theCase.species + ", " + kindOfAverage(results.names.blocks) + ": limit " +
         theCase.standardText + ", significant impact level " + theCase.silText + " ug/m**3";
}

std::string head(const Results& results, const std::string& runOn) {
  const std::string title = escaped(results.names.theCase.species + ": " + headline(results));
  const std::string engine = std::string(kTitle) + ", VERSION " + std::string(kVersion);
  return "<html lang=\"en\"><head><meta charset=\"utf-8\"/>\n"
         "<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\"/>\n"
         "<meta name=\"color-scheme\" content=\"light dark\"/>\n" +
         element("title", title) + "\n" + element("style", kStyle) + "</head>\n<body>\n" +
         element("header", element("p", escaped(engine)) +
                               element("p", escaped("Run on " + runOn)) +
                               element("p class=\"case\"", sentence(caseInWords(results)))) +
         "\n<main>\n";
}

std::string picture(const char* tag, const std::string& title, const std::string& content) {
  return element(tag, element("h2", title) + content) + "\n";
}

void addPictures(const Results& results, SideFile& file) {
  const bool exceeds = results.judgement.exceedances.count > 0;
  file.add("<div class=\"pictures\">\n");
  file.add(picture("section class=\"picture\"", "Where", mapOf(results)));
  file.add(picture("section class=\"picture\"",
                   exceeds ? "The largest exceedances" : "The highest totals", barsOf(results)));
  file.add(picture("section class=\"picture whole\"", "When", seriesOf(results)));
  file.add("</div>\n");
}

std::string foot(const Results& results) {
  return "</main>\n" +
         element("footer", "The figures are those of the list file " +
                               escaped(results.names.theCase.listFile) + ".") +
         "\n</body></html>\n";
}

}  // namespace

void writePage(const Results& results, const std::string& runOn, SideFile& file) {
  file.begin({});
  file.attempt([&] {
    file.add(head(results, runOn) + summaryOf(results));
    addPictures(results, file);
    file.add(element("div class=\"facts\"", factsOf(results)) + "\n");
    writeTables(results, file);
    file.add(foot(results));
  });
  file.finish();
}

}  // namespace korventally::engine
