#include "demo/form.h"

namespace korventally::demo {
namespace {

constexpr std::wstring_view kButton = L"button";
constexpr std::wstring_view kEdit = L"edit";
constexpr std::wstring_view kLabel = L"static";

constexpr std::wstring_view kOne = L"WORKING DIRECTORY:";
constexpr std::wstring_view kTwo = L"SELECT THE TYPE";
constexpr std::wstring_view kThree = L"INPUT INFO";
constexpr std::wstring_view kFour = L"PROCESSING";
constexpr std::wstring_view kFive = L"OUTPUT";
constexpr std::wstring_view kReceptors = L"File with Receptors";
constexpr std::wstring_view kTime = L"Start Time";
constexpr std::wstring_view kRank = L"Rank 1";
constexpr std::wstring_view kPeriod = L"AVERAGING";

// clang-format off
constexpr Sketch kWizardSketches[] = {
    {"frameWorkingDirectory", kButton, L"", {120, 120, 11295, 855}, kOne, true},
    {"txtWorkDir", kEdit, kOne, {360, 360, 9615, 315}, L"", true},
    {"cmdBrowseWorkDir", kButton, kOne, {10080, 340, 975, 315}, L"Browse", true},
    {"cmdNext1", kButton, L"column 1", {240, 340, 1000, 315}, L"NEXT", true},

    {"frameAnalysisType", kButton, L"", {120, 1080, 11295, 1935}, L"SELECT THE TYPE OF ANALYSIS TO PERFORM:"},
    {"optClassI", kButton, L"AREA:", {150, 330, 1140, 255}, L"Class I", false, true},
    {"optClassII", kButton, L"AREA:", {150, 670, 1140, 255}, L"Class II"},
    {"cmdNextArrow1", kButton, kTwo, {1740, 570, 480, 420}, L"\u00AE"},
    {"cmdBackArrow1", kButton, kTwo, {1740, 1110, 480, 420}, L"\u00AC"},
    {"optNAAQS", kButton, L"STANDARD:", {150, 330, 1140, 255}, L"NAAQS", false, true},
    {"optPSD", kButton, L"STANDARD:", {150, 670, 1140, 255}, L"PSD"},
    {"cmdNextArrow2", kButton, kTwo, {3840, 570, 480, 420}, L"\u00AE"},
    {"cmdBackArrow2", kButton, kTwo, {3840, 1110, 480, 420}, L"\u00AC"},
    {"optSO2", kButton, L"SPECIES:", {150, 330, 1140, 255}, L"SO2", false, true},
    {"optPM10", kButton, L"SPECIES:", {150, 670, 1140, 255}, L"PM10"},
    {"optNOX", kButton, L"SPECIES:", {150, 1010, 1140, 255}, L"NOX"},
    {"cmdNextArrow3", kButton, kTwo, {5940, 570, 480, 420}, L"\u00AE"},
    {"cmdBackArrow3", kButton, kTwo, {5940, 1110, 480, 420}, L"\u00AC"},
    {"opt3hr", kButton, kPeriod, {150, 330, 1740, 255}, L"3 Hour", false, true},
    {"opt24hr", kButton, kPeriod, {150, 670, 1740, 255}, L"24 Hour"},
    {"optAnnual", kButton, kPeriod, {150, 1010, 1740, 255}, L"Annual"},
    {"lblNumOfOthers", kLabel, kTwo, {9060, 555, 1995, 420}, L"Number of OTHER Source Groups to Analyze"},
    {"txtNumOfOthers", kEdit, kTwo, {9060, 1080, 975, 315}, L""},
    {"cmdPrevious2", kButton, L"column 2", {240, 540, 1000, 315}, L"PREVIOUS"},
    {"cmdNext2", kButton, L"column 2", {240, 1080, 1000, 315}, L"NEXT"},

    {"frameSourceGroupInfo", kButton, L"", {120, 3120, 11295, 2655}, L"INPUT INFO FOR SOURCE GROUP \"ALL SOURCES\":"},
    {"lblConcFile", kLabel, kThree, {240, 435, 1695, 255}, L"Concentration File:"},
    {"txtConcFile", kEdit, kThree, {2040, 390, 7935, 315}, L"", false, false, 132},
    {"cmdBrowseFile", kButton, kThree, {10080, 390, 975, 315}, L"Browse"},
    {"lblNote1", kLabel, kThree, {2040, 735, 7935, 210}, L"(Units must be g/m**3. Path/filenames may be no more than 132 characters in length.)"},
    {"lblGroupName", kLabel, kThree, {240, 1110, 1695, 255}, L"Source Group Name:"},
    {"txtGroupName", kEdit, kThree, {2040, 1065, 1935, 315}, L"ALL_SOURCES", false, false, 13},
    {"lblNote2", kLabel, kThree, {2040, 1410, 1935, 210}, L"(Up to 13 chars.)"},
    {"lblNote4", kLabel, kThree, {2040, 1635, 1935, 210}, L"(Must begin with \"ALL\".)"},
    {"lblNote5", kLabel, kThree, {240, 1410, 1695, 420}, L"(For output table column headers.)"},
    {"lblAmbientBckg", kLabel, kThree, {4440, 1110, 1695, 255}, L"Ambient Background:"},
    {"txtAmbientBckg", kEdit, kThree, {6240, 1065, 1935, 315}, L"", false, false, 132},
    {"lblugm3", kLabel, kThree, {8280, 1110, 735, 255}, L"ug/m**3"},
    {"lblNote3", kLabel, kThree, {6240, 1410, 4815, 630}, L"(Please enter a constant ambient background concentration value if it is not already included in the above selected ALL SOURCES concentration file.)"},
    {"cmdPrevGroup", kButton, kThree, {3720, 2145, 1875, 375}, L"<  PREVIOUS GROUP"},
    {"cmdNextGroup", kButton, kThree, {5700, 2145, 1875, 375}, L"  NEXT GROUP  >"},
    {"cmdPrevious3", kButton, L"column 3", {240, 900, 1000, 315}, L"PREVIOUS"},
    {"cmdNext3", kButton, L"column 3", {240, 1440, 1000, 315}, L"NEXT"},

    {"frameProcessingInfo", kButton, L"", {120, 5880, 11295, 2535}, L"PROCESSING INFORMATION:"},
    {"frameReceptorDATFormat", kButton, kFour, {360, 325, 6615, 2070}, L"File with Receptors to be Processed:"},
    {"txtReceptorDATFile", kEdit, kReceptors, {240, 420, 5150, 315}, L"", false, false, 132},
    {"cmdBrowseReceptorDAT", kButton, kReceptors, {5480, 405, 975, 315}, L"Browse"},
    {"lblReceptorFileFormat", kLabel, kReceptors, {240, 960, 1335, 255}, L"File Format"},
    {"optReceptor_TOLVREN", kButton, kReceptors, {480, 1275, 2775, 210}, L"TOLVREN Output Ranked DAT File", false, true},
    {"optReceptor_Generic", kButton, kReceptors, {480, 1575, 2175, 210}, L"Generic (X,Y,ID) DAT File"},
    {"frameRunLength", kButton, kFour, {7080, 325, 3975, 1300}, L"Start Time and Run Length:"},
    {"lblYear", kLabel, kTime, {120, 345, 495, 255}, L"Year:"},
    {"txtYear", kEdit, kTime, {670, 300, 615, 315}, L"YYYY", false, false, 4},
    {"lblDay", kLabel, kTime, {1320, 345, 495, 255}, L"Day:"},
    {"txtDay", kEdit, kTime, {1870, 300, 615, 315}, L"DD", false, false, 2},
    {"lblMonth", kLabel, kTime, {120, 865, 495, 255}, L"Month:"},
    {"txtMonth", kEdit, kTime, {670, 820, 615, 315}, L"MM", false, false, 2},
    {"lblHour", kLabel, kTime, {1320, 865, 495, 255}, L"Hour:"},
    {"txtHour", kEdit, kTime, {1870, 820, 615, 315}, L"HH", false, false, 2},
    {"lblRunLength", kLabel, kTime, {2760, 350, 975, 255}, L"Run Length:"},
    {"txtRunLength", kEdit, kTime, {2760, 660, 615, 315}, L"", false, false, 6},
    {"lblHours", kLabel, kTime, {3415, 705, 495, 255}, L"hours"},
    {"frameRank1Values", kButton, kFour, {7080, 1720, 3975, 680}, L"Rank 1 Values:"},
    {"optRank1_Include", kButton, kRank, {670, 320, 855, 210}, L"Include", false, true},
    {"optRank1_Exclude", kButton, kRank, {1870, 320, 975, 210}, L"Exclude"},
    {"cmdPrevious4", kButton, L"column 4", {240, 840, 1000, 315}, L"PREVIOUS"},
    {"cmdNext4", kButton, L"column 4", {240, 1380, 1000, 315}, L"NEXT"},

    {"frameOutputFile", kButton, L"", {120, 8520, 11295, 855}, L"OUTPUT RESULTS FILE:"},
    {"lblLSTFilename", kLabel, kFive, {420, 415, 1095, 255}, L"List Filename:"},
    {"txtLSTFilename", kEdit, kFive, {1440, 380, 8535, 315}, L"korventally.lst", false, false, 132},
    {"cmdDefault_LST", kButton, kFive, {10080, 360, 975, 315}, L"Default"},
    {"cmdPrevious5", kButton, L"column 5", {240, 340, 1000, 315}, L"PREVIOUS"},
    {"cmdBackToTop", kButton, L"", {120, 9600, 1635, 500}, L"Back to Top", true},
    {"cmdRUN", kButton, L"", {4950, 9600, 1635, 500}, L"RUN"},
    {"cmdCancel", kButton, L"", {6694, 9600, 1635, 500}, L"Cancel", true},
};

constexpr Sketch kSummarySketches[] = {
    {"lblAnalysisType", kLabel, L"", {3360, 360, 1815, 255}, L"Class I NAAQS/SIL", true},
    {"txtSpecies", kEdit, L"", {3360, 800, 1095, 330}, L"SO2", true},
    {"txtAvePeriod", kEdit, L"", {3360, 1280, 1095, 330}, L"3", true},
    {"txtNAAQSPSDLimit", kEdit, L"", {3360, 1760, 1095, 330}, L"1300.0", true},
    {"txtSILLimit", kEdit, L"", {3360, 2240, 1095, 330}, L"1.0", true},
    {"lblAmbientConc", kLabel, L"", {3360, 2760, 1815, 255}, L"0 ug/m**3", true},
    {"lblRank1_YesNo", kLabel, L"", {3360, 3240, 1815, 255}, L"Included", true},
    {"lblRunning", kLabel, L"", {2880, 3720, 1095, 375}, L""},
    {"lblStatus", kLabel, L"", {120, 3720, 6375, 375}, L""},
    {"chkAutoOpen", kButton, L"", {1680, 4200, 3375, 255}, L"Open KORVENTALLY output file after run", true, true},
    {"cmdRUN", kButton, L"", {1846, 4560, 1400, 450}, L"RUN", true},
    {"cmdBack", kButton, L"", {3368, 4560, 1400, 450}, L"Back", true},
};

constexpr Sketch kAboutSketches[] = {
    {"lblVersion", kLabel, L"", {1410, 600, 1815, 255}, L"Version1.2", true},
    {"cmdOK", kButton, L"", {1500, 2640, 1215, 375}, L"OK", true},
    {"chkDebug", kButton, L"", {0, 2940, 255, 195}, L"", true},
};
// clang-format on

}  // namespace

const std::span<const Sketch> kWizard{kWizardSketches};
const std::span<const Sketch> kSummary{kSummarySketches};
const std::span<const Sketch> kAbout{kAboutSketches};

}  // namespace korventally::demo
