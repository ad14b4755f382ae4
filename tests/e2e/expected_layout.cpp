#include "tests/e2e/expected_layout.h"

#include "driver/landmarks.h"

namespace korventally::driver {
namespace {

// clang-format off
constexpr Expected kControls[] = {
    {"frameWorkingDirectory", L"WORKING DIRECTORY:", true},
    {"txtWorkDir", L"", true},
    {"cmdBrowseWorkDir", L"Browse", true},
    {"cmdNext1", L"NEXT", true},

    {"frameAnalysisType", L"SELECT THE TYPE OF ANALYSIS TO PERFORM:"},
    {"optClassI", L"Class I", false, true},
    {"optClassII", L"Class II"},
    {"cmdNextArrow1", L"\u00AE"},
    {"cmdBackArrow1", L"\u00AC"},
    {"optNAAQS", L"NAAQS", false, true},
    {"optPSD", L"PSD"},
    {"cmdNextArrow2", L"\u00AE"},
    {"cmdBackArrow2", L"\u00AC"},
    {"optSO2", L"SO2", false, true},
    {"optPM10", L"PM10"},
    {"optNOX", L"NOX"},
    {"cmdNextArrow3", L"\u00AE"},
    {"cmdBackArrow3", L"\u00AC"},
    {"opt3hr", L"3 Hour", false, true},
    {"opt24hr", L"24 Hour"},
    {"optAnnual", L"Annual"},
    {"txtNumOfOthers", L""},
    {"cmdPrevious2", L"PREVIOUS"},
    {"cmdNext2", L"NEXT"},

    {"frameSourceGroupInfo", L"INPUT INFO FOR SOURCE GROUP \"ALL SOURCES\":"},
    {"txtConcFile", L"", false, false, 132},
    {"cmdBrowseFile", L"Browse"},
    {"txtGroupName", L"ALL_SOURCES", false, false, 13},
    {"txtAmbientBckg", L"", false, false, 132},
    {"cmdPrevGroup", L"<  PREVIOUS GROUP"},
    {"cmdNextGroup", L"  NEXT GROUP  >"},
    {"cmdPrevious3", L"PREVIOUS"},
    {"cmdNext3", L"NEXT"},

    {"frameProcessingInfo", L"PROCESSING INFORMATION:"},
    {"frameReceptorDATFormat", L"File with Receptors to be Processed:"},
    {"txtReceptorDATFile", L"", false, false, 132},
    {"cmdBrowseReceptorDAT", L"Browse"},
    {"optReceptor_TOLVREN", L"TOLVREN Output Ranked DAT File", false, true},
    {"optReceptor_Generic", L"Generic (X,Y,ID) DAT File"},
    {"frameRunLength", L"Start Time and Run Length:"},
    {"txtYear", L"YYYY", false, false, 4},
    {"txtDay", L"DD", false, false, 2},
    {"txtMonth", L"MM", false, false, 2},
    {"txtHour", L"HH", false, false, 2},
    {"txtRunLength", L"", false, false, 6},
    {"frameRank1Values", L"Rank 1 Values:"},
    {"optRank1_Include", L"Include", false, true},
    {"optRank1_Exclude", L"Exclude"},
    {"cmdPrevious4", L"PREVIOUS"},
    {"cmdNext4", L"NEXT"},

    {"frameOutputFile", L"OUTPUT RESULTS FILE:"},
    {"txtLSTFilename", L"korventally.lst", false, false, 132},
    {"cmdDefault_LST", L"Default"},
    {"cmdPrevious5", L"PREVIOUS"},
    {"cmdBackToTop", L"Back to Top", true},
    {"cmdRUN", L"RUN"},
    {"cmdCancel", L"Cancel", true},

};

constexpr ExpectedThere kThere[] = {
    {{"lblNumOfOthers", kLabel, kTwo, {9060, 555, 1995, 420}}, L"Number of OTHER Source Groups to Analyze"},
    {{"lblConcFile", kLabel, kThree, {240, 435, 1695, 255}}, L"Concentration File:"},
    {{"lblNote1", kLabel, kThree, {2040, 735, 7935, 210}}, L"(Units must be g/m**3. Path/filenames may be no more than 132 characters in length.)"},
    {{"lblGroupName", kLabel, kThree, {240, 1110, 1695, 255}}, L"Source Group Name:"},
    {{"lblNote2", kLabel, kThree, {2040, 1410, 1935, 210}}, L"(Up to 13 chars.)"},
    {{"lblNote4", kLabel, kThree, {2040, 1635, 1935, 210}}, L"(Must begin with \"ALL\".)"},
    {{"lblNote5", kLabel, kThree, {240, 1410, 1695, 420}}, L"(For output table column headers.)"},
    {{"lblAmbientBckg", kLabel, kThree, {4440, 1110, 1695, 255}}, L"Ambient Background:"},
    {{"lblugm3", kLabel, kThree, {8280, 1110, 735, 255}}, L"ug/m**3"},
    {{"lblNote3", kLabel, kThree, {6240, 1410, 4815, 630}}, L"(Please enter a constant ambient background concentration value if it is not already included in the above selected ALL SOURCES concentration file.)"},
    {{"lblReceptorFileFormat", kLabel, kReceptors, {240, 960, 1335, 255}}, L"File Format"},
    {{"lblYear", kLabel, kTime, {120, 345, 495, 255}}, L"Year:"},
    {{"lblDay", kLabel, kTime, {1320, 345, 495, 255}}, L"Day:"},
    {{"lblMonth", kLabel, kTime, {120, 865, 495, 255}}, L"Month:"},
    {{"lblHour", kLabel, kTime, {1320, 865, 495, 255}}, L"Hour:"},
    {{"lblRunLength", kLabel, kTime, {2760, 350, 975, 255}}, L"Run Length:"},
    {{"lblHours", kLabel, kTime, {3415, 705, 495, 255}}, L"hours"},
    {{"lblLSTFilename", kLabel, kFive, {420, 415, 1095, 255}}, L"List Filename:"},
    {{"frameArea", kButton, kTwo, {240, 360, 1380, 1410}}, L"AREA:"},
    {{"frameEPAStandard", kButton, kTwo, {2340, 360, 1380, 1410}}, L"STANDARD:"},
    {{"frameSpecies", kButton, kTwo, {4440, 360, 1380, 1410}}, L"SPECIES:"},
    {{"frameAveragingPeriod", kButton, kTwo, {6540, 360, 2040, 1410}}, L"AVERAGING PERIOD:"},
    // A rule is one pixel thick.
    {{"Line3", kLabel, kTwo, {8820, 360, 15, 1410}}, L""},
    {{"Line1", kLabel, kTime, {2615, 240, 15, 960}}, L""},
    {{"Picture2", kLabel, L"", {12270, 9780, 810, 360}}, L"", true},
};

constexpr Sketch kAboutSketches[] = {
    {"cmdOK", kButton, L"", {1500, 2640, 1215, 375}},
    {"chkDebug", kButton, L"", {0, 2940, 255, 195}},
    {"lblVersion", kLabel, L"", {1410, 600, 1815, 255}},
};
// clang-format on

}  // namespace

const std::span<const Expected> kExpectedControls{kControls};
const std::span<const ExpectedThere> kExpectedThere{kThere};
const std::span<const Sketch> kAbout{kAboutSketches};

}  // namespace korventally::driver
