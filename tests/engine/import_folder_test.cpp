// What an import leaves in the folder, and what it must not touch there.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "engine/import/file_names.h"
#include "engine/system_files.h"
#include "tests/engine/imports.h"

namespace korventally::engine {
namespace {

const std::vector<std::string> kFiles = {"=plot/all.pst", "=plot/facility.pst"};

std::size_t countFiles(Imports& imports) {
  const auto folder = std::filesystem::directory_iterator(imports.study().path("out"));
  return static_cast<std::size_t>(std::distance(begin(folder), end(folder)));
}

TEST(ImportFolder, HoldsTheResultsAndNothingElse) {
  Imports imports;
  ASSERT_EQ(imports.run(kFiles), "");
  EXPECT_EQ(countFiles(imports), 5u);
  const std::string before = imports.result("ALL.con");
  ASSERT_EQ(imports.run({"=onefile/three_groups.pst"}), "");
  EXPECT_EQ(countFiles(imports), 6u);
  EXPECT_EQ(imports.result("ALL.con"), before);
  EXPECT_NE(imports.result("case.inp").find("OTHER1.con"), std::string::npos);
}

// The interpreter of Windows hands such names over as they are.
TEST(ImportFolder, IsReadByNamesWithStars) {
  struct Row {
    std::string pattern;
    std::vector<std::string> files;
  };
  Imports imports;
  for (const char* name : {"model/b.pst", "model/a.pst", "model/ab.pst", "model/a.txt"}) {
    imports.write(name, "x");
  }
  for (const Row& row :
       {Row{"*.pst", {"a.pst", "ab.pst", "b.pst"}}, Row{"?.pst", {"a.pst", "b.pst"}},
        Row{"a*", {"a.pst", "a.txt", "ab.pst"}}, Row{"*b*t", {"ab.pst", "b.pst"}},
        Row{"a.pst", {"a.pst"}}, Row{"**", {"a.pst", "a.txt", "ab.pst", "b.pst"}}}) {
    std::vector<std::string> found;
    for (const NativePath& file : filesNamed(imports.study().path("model") / row.pattern)) {
      EXPECT_EQ(file, imports.study().path("model") / textFromPath(file.filename()));
      found.push_back(textFromPath(file.filename()));
    }
    EXPECT_EQ(found, row.files) << row.pattern;
  }
  EXPECT_EQ(imports.run({"@model/?.x"}).substr(0, 30), "There is no file that fits mod");
}

// A file of somebody else, or one that was changed, stays; and so does everything beside it.
TEST(ImportFolder, KeepsWhatIsNotItsOwn) {
  for (const char* name : {"ALL.con", "receptors.dat", "case.inp", "import.txt"}) {
    Imports imports;
    imports.write("out/" + std::string(name), "mine\n");
    EXPECT_EQ(imports.run(kFiles),
              "The file out" + std::string(1, std::filesystem::path::preferred_separator) + name +
                  " is there and was not written by an import, or was changed "
                  "since. It stays as it is: move it away, or choose another "
                  "folder with --out.");
    EXPECT_EQ(imports.result(name), "mine\n");
    EXPECT_EQ(countFiles(imports), 1u) << name;
  }
  Imports imports;
  ASSERT_EQ(imports.run(kFiles), "");
  const std::string changed = imports.result("case.inp") + " ";
  imports.write("out/case.inp", changed);
  EXPECT_NE(imports.run(kFiles), "");
  EXPECT_EQ(imports.result("case.inp"), changed);
}

TEST(ImportFolder, KeepsTheLastResultsWhenAnImportFails) {
  Imports imports;
  ASSERT_EQ(imports.run(kFiles), "");
  const std::string before = imports.result("ALL.con");
  EXPECT_NE(imports.run({"=plot/all.pst", "=gap/all.pst"}), "");
  EXPECT_EQ(imports.result("ALL.con"), before);
  EXPECT_EQ(countFiles(imports), 5u);
}

// What a killed import left under a name that is needed goes; what somebody else calls so does not.
TEST(ImportFolder, IsCleanedOfPartFiles) {
  Imports imports;
  imports.write("out/import_1.part", "# KorvenTally import: a part of what one was writing\n2010");
  imports.write("out/import_77.part", "# KorvenTally import: a part of what one was writing\n2010");
  imports.write("out/import_2.part", "mine");
  ASSERT_EQ(imports.run(kFiles), "");
  EXPECT_EQ(imports.result("import_1.part"), "");
  EXPECT_EQ(imports.result("import_77.part"), "");
  EXPECT_EQ(imports.result("import_2.part"), "mine");
  EXPECT_EQ(countFiles(imports), 6u);
}

}  // namespace
}  // namespace korventally::engine
