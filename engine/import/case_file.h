// A control file of the imported case, for the wizard to be opened with.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/import/imported_study.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// The results beside the groups' concentration files.
inline constexpr std::string_view kImportReport = "import.txt";
inline constexpr std::string_view kImportCase = "case.inp";
inline constexpr std::string_view kImportReceptors = "receptors.dat";

/// A file name for each group: its own where a file can have it, no two alike in any case of
/// letters. With the ending ".con".
std::vector<std::string> concentrationFileNames(const ImportedStudy& study);

/// The group's name in the case. The wizard asks for one that begins with "ALL" for the first.
std::string caseNameOf(const ImportedStudy& study, std::size_t group);

/// The control file's content. What a dispersion model does not know are the wizard's first
/// choices: SO2, three hours, Class I, NAAQS, no background. `folder` holds the results. Throws
/// Fault when a path is no text in the code page.
std::string caseText(const ImportedStudy& study, const NativePath& folder);

}  // namespace korventally::engine
