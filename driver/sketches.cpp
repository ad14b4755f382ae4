#include <span>

#include "driver/forms.h"
#include "driver/landmarks.h"

namespace korventally::driver {
namespace {

// clang-format off
constexpr Sketch kWizardSketches[] = {
    {"frameWorkingDirectory", kButton, L"", {120, 120, 11295, 855}},
    {"txtWorkDir", kEdit, kOne, {360, 360, 9615, 315}},
    {"cmdBrowseWorkDir", kButton, kOne, {10080, 340, 975, 315}},
    {"cmdNext1", kButton, L"column 1", {240, 340, 1000, 315}},

    {"frameAnalysisType", kButton, L"", {120, 1080, 11295, 1935}},
    {"optClassI", kButton, L"AREA:", {150, 330, 1140, 255}},
    {"optClassII", kButton, L"AREA:", {150, 670, 1140, 255}},
    {"cmdNextArrow1", kButton, kTwo, {1740, 570, 480, 420}},
    {"cmdBackArrow1", kButton, kTwo, {1740, 1110, 480, 420}},
    {"optNAAQS", kButton, L"STANDARD:", {150, 330, 1140, 255}},
    {"optPSD", kButton, L"STANDARD:", {150, 670, 1140, 255}},
    {"cmdNextArrow2", kButton, kTwo, {3840, 570, 480, 420}},
    {"cmdBackArrow2", kButton, kTwo, {3840, 1110, 480, 420}},
    {"optSO2", kButton, L"SPECIES:", {150, 330, 1140, 255}},
    {"optPM10", kButton, L"SPECIES:", {150, 670, 1140, 255}},
    {"optNOX", kButton, L"SPECIES:", {150, 1010, 1140, 255}},
    {"cmdNextArrow3", kButton, kTwo, {5940, 570, 480, 420}},
    {"cmdBackArrow3", kButton, kTwo, {5940, 1110, 480, 420}},
    {"opt3hr", kButton, kPeriod, {150, 330, 1740, 255}},
    {"opt24hr", kButton, kPeriod, {150, 670, 1740, 255}},
    {"optAnnual", kButton, kPeriod, {150, 1010, 1740, 255}},
    {"txtNumOfOthers", kEdit, kTwo, {9060, 1080, 975, 315}},
    {"cmdPrevious2", kButton, L"column 2", {240, 540, 1000, 315}},
    {"cmdNext2", kButton, L"column 2", {240, 1080, 1000, 315}},

    {"frameSourceGroupInfo", kButton, L"", {120, 3120, 11295, 2655}},
    {"txtConcFile", kEdit, kThree, {2040, 390, 7935, 315}},
    {"cmdBrowseFile", kButton, kThree, {10080, 390, 975, 315}},
    {"txtGroupName", kEdit, kThree, {2040, 1065, 1935, 315}},
    {"txtAmbientBckg", kEdit, kThree, {6240, 1065, 1935, 315}},
    {"cmdPrevGroup", kButton, kThree, {3720, 2145, 1875, 375}},
    {"cmdNextGroup", kButton, kThree, {5700, 2145, 1875, 375}},
    {"cmdPrevious3", kButton, L"column 3", {240, 900, 1000, 315}},
    {"cmdNext3", kButton, L"column 3", {240, 1440, 1000, 315}},

    {"frameProcessingInfo", kButton, L"", {120, 5880, 11295, 2535}},
    {"frameReceptorDATFormat", kButton, kFour, {360, 325, 6615, 2070}},
    {"txtReceptorDATFile", kEdit, kReceptors, {240, 420, 5150, 315}},
    {"cmdBrowseReceptorDAT", kButton, kReceptors, {5480, 405, 975, 315}},
    {"optReceptor_TOLVREN", kButton, kReceptors, {480, 1275, 2775, 210}},
    {"optReceptor_Generic", kButton, kReceptors, {480, 1575, 2175, 210}},
    {"frameRunLength", kButton, kFour, {7080, 325, 3975, 1300}},
    {"txtYear", kEdit, kTime, {670, 300, 615, 315}},
    {"txtDay", kEdit, kTime, {1870, 300, 615, 315}},
    {"txtMonth", kEdit, kTime, {670, 820, 615, 315}},
    {"txtHour", kEdit, kTime, {1870, 820, 615, 315}},
    {"txtRunLength", kEdit, kTime, {2760, 660, 615, 315}},
    {"frameRank1Values", kButton, kFour, {7080, 1720, 3975, 680}},
    {"optRank1_Include", kButton, kRank, {670, 320, 855, 210}},
    {"optRank1_Exclude", kButton, kRank, {1870, 320, 975, 210}},
    {"cmdPrevious4", kButton, L"column 4", {240, 840, 1000, 315}},
    {"cmdNext4", kButton, L"column 4", {240, 1380, 1000, 315}},

    {"frameOutputFile", kButton, L"", {120, 8520, 11295, 855}},
    {"txtLSTFilename", kEdit, kFive, {1440, 380, 8535, 315}},
    {"cmdDefault_LST", kButton, kFive, {10080, 360, 975, 315}},
    {"cmdPrevious5", kButton, L"column 5", {240, 340, 1000, 315}},
    {"cmdBackToTop", kButton, L"", {120, 9600, 1635, 500}},
    {"cmdRUN", kButton, L"", {4950, 9600, 1635, 500}},
    {"cmdCancel", kButton, L"", {6694, 9600, 1635, 500}},

};

constexpr Sketch kSummarySketches[] = {
    {"lblAnalysisType", kLabel, L"", {3360, 360, 1815, 255}},
    {"txtSpecies", kEdit, L"", {3360, 800, 1095, 330}},
    {"txtAvePeriod", kEdit, L"", {3360, 1280, 1095, 330}},
    {"txtNAAQSPSDLimit", kEdit, L"", {3360, 1760, 1095, 330}},
    {"txtSILLimit", kEdit, L"", {3360, 2240, 1095, 330}},
    {"lblRunning", kLabel, L"", {2880, 3720, 1095, 375}},
    {"lblStatus", kLabel, L"", {120, 3720, 6375, 375}},
    {"chkAutoOpen", kButton, L"", {1680, 4200, 3375, 255}},
    {"cmdRUN", kButton, L"", {1846, 4560, 1400, 450}},
    {"cmdBack", kButton, L"", {3368, 4560, 1400, 450}},

};
// clang-format on

}  // namespace

const std::span<const Sketch> kWizard{kWizardSketches};
const std::span<const Sketch> kSummary{kSummarySketches};

}  // namespace korventally::driver
