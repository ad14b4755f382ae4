#include "platform/files.h"

#include <gtest/gtest.h>

#include "tests/platform/contract/world.h"

namespace korventally::testing {
namespace {

class Files : public ::testing::Test {
 protected:
  /// All bytes of a file, read in small bites.
  static std::string bytesOf(const std::string& path) {
    const auto reader = openForReading(path);
    return reader ? restOf(*reader.value()) : "cannot be opened: " + reader.error().text;
  }

  static std::string restOf(FileReader& reader) {
    std::string bytes;
    char bite[7];
    while (true) {
      const auto count = reader.read(bite);
      if (!count || count.value() == 0) return bytes;
      bytes.append(bite, count.value());
    }
  }

  static constexpr const char* kLiteral = R"(\\?\)";
  World world;
  const std::string folder = world.freshFolder();
};

TEST_F(Files, AreWrittenByteForByte) {
  const struct {
    std::vector<std::string> lines;
    std::string bytes;
  } table[] = {
      {{"a much longer file", "", "of three lines"},
       "a much longer file\r\n\r\nof three lines\r\n"},
      {{"short"}, "short\r\n"},
      {{" blanks kept ", "50%, \"quoted\"\ttab"}, " blanks kept \r\n50%, \"quoted\"\ttab\r\n"},
      {{"é €"}, "\xE9 \x80\r\n"},
      {{}, ""},
  };
  for (const auto& row : table) {
    const Status written = writeTextFile(folder + "same.txt", row.lines);
    ASSERT_TRUE(written) << written.error().text;
    EXPECT_EQ(bytesOf(folder + "SAME.TXT"), row.bytes) << "replaced, whatever the case of the name";
  }
}

TEST_F(Files, AreTheSameHoweverTheyAreSpelled) {
  ASSERT_TRUE(writeTextFile(folder + "Äpfel.con", {}) && writeTextFile(folder + "other.con", {}));
  for (const char* name : {"Äpfel.con", "äPFEL.CON", ".\\Äpfel.con", "Äpfel.con "}) {
    EXPECT_TRUE(sameFile(folder + "Äpfel.con", folder + name)) << name;
  }
  EXPECT_FALSE(sameFile(folder + "Äpfel.con", folder + "other.con"));
  EXPECT_FALSE(sameFile(folder + "none", folder + "none")) << "there is no file at all";
}

TEST_F(Files, HaveAnAbsolutePath) {
  for (const std::string& path : {folder + "é.inp", folder, std::string()}) {
    EXPECT_EQ(absolutePath(path), path);
  }
  const std::string relative = absolutePath("sub\\..\\no.inp");
  EXPECT_TRUE(relative.ends_with("\\no.inp") && relative.find("..") == std::string::npos);
  EXPECT_EQ(relative.substr(1, 2), ":\\") << relative;
}

TEST_F(Files, AreNotTouchedWhenTheTextIsNotAnsi) {
  const std::string path = folder + "kept.txt";
  ASSERT_TRUE(writeTextFile(path, {"kept"}));
  const Status refused = writeTextFile(path, {"fine", "not 日本 fine"});
  ASSERT_FALSE(refused);
  EXPECT_EQ(refused.error().kind, ErrorKind::kNotAnsi);
  EXPECT_NE(refused.error().text.find("not 日本 fine"), std::string::npos) << refused.error().text;
  EXPECT_EQ(refused.error().path, path);
  EXPECT_EQ(bytesOf(path), "kept\r\n");
  EXPECT_FALSE(writeTextFile(folder + "new.txt", {"日本"}));
  EXPECT_FALSE(fileExists(folder + "new.txt")) << "nor created";
}

TEST_F(Files, TextGoesToAnsiAndBackOrNotAtAll) {
  for (const std::string text : {"", "plain", "Sûr & (co) é€", "„Anführung“ – ½"}) {
    const auto bytes = toAnsi(text);
    ASSERT_TRUE(bytes) << text;
    EXPECT_EQ(fromAnsi(bytes.value()), text);
  }
  EXPECT_EQ(toAnsi("é€").value(), "\xE9\x80");
  // Look-alikes of quote, percent and ampersand, which a best fit would turn into syntax.
  for (const std::string text : {"＂", "％", "＆", "a日", "\xFF", "😀", "ā"}) {
    const auto bytes = toAnsi(text);
    ASSERT_FALSE(bytes) << text;
    EXPECT_EQ(bytes.error().kind, ErrorKind::kNotAnsi);
  }
}

TEST_F(Files, ExistOnlyAsOrdinaryFiles) {
  ASSERT_TRUE(writeTextFile(folder + "Here é.txt", {}));
  world.append(folder + "read-only", "x");
  world.makeReadOnly(folder + "read-only");
  world.append(folder + "hidden", "x");
  world.hide(folder + "hidden");
  world.makeFolder(folder + "sub");
  const struct {
    const char* name;
    bool exists;
  } table[] = {{"Here é.txt", true},    {"here É.TXT", true}, {"Here é.txt  ", true},
               {"read-only", true},     {"hidden", false},    {"sub", false},
               {"sub\\", false},        {"*", false},         {"Here?é.txt", false},
               {"missing", false},      {"", false},          {"sub\\..\\read-only", true},
               {"Here é.txt\\", false}, {"none\\x", false}};
  for (const auto& row : table) EXPECT_EQ(fileExists(folder + row.name), row.exists) << row.name;
  EXPECT_FALSE(fileExists(""));
}

TEST_F(Files, AreNoDevices) {
  ASSERT_TRUE(writeTextFile(folder + "COM1x.con", {}));
  EXPECT_TRUE(fileExists(folder + "COM1x.con"));
  for (const std::string name :
       {"NUL", "con", "COM1", "LPT1", "COM1.con", "nul .con", "CONIN$", "conout$"}) {
    for (const std::string& path : {name, folder + name, "\\\\.\\" + name}) {
      EXPECT_FALSE(fileExists(path)) << path;
      EXPECT_FALSE(openForReading(path)) << path;
      EXPECT_FALSE(writeTextFile(path, {})) << path;
    }
  }
  EXPECT_FALSE(fileExists("\\\\.\\" + folder + "COM1x.con"));
  EXPECT_FALSE(folderListsEntries("\\\\.\\" + folder));
}

TEST_F(Files, CanBeNamedLiterally) {
  const std::string literal = kLiteral + folder;
  EXPECT_TRUE(folderListsEntries(literal));
  EXPECT_FALSE(folderListsEntries(literal + "?\\"));
  ASSERT_TRUE(writeTextFile(literal + "é.txt", {"text"}));
  EXPECT_TRUE(fileExists(literal + "É.TXT"));
  EXPECT_TRUE(sameFile(literal + "é.txt", folder + "é.txt"));
  EXPECT_EQ(bytesOf(literal + "é.txt"), "text\r\n");
  for (const char* name : {"é.txt ", "é.tx?", "..\\", "./é.txt"}) {
    EXPECT_FALSE(fileExists(literal + name)) << name << " is no name, taken as it stands";
  }
  EXPECT_TRUE(deleteFile(literal + "é.txt"));
}

TEST_F(Files, FoldersListThemselvesUnlessTheyAreMissing) {
  world.makeFolder(folder + "empty");
  ASSERT_TRUE(writeTextFile(folder + "file", {}));
  EXPECT_TRUE(folderListsEntries(folder));
  EXPECT_TRUE(folderListsEntries(folder + "empty\\"));
  EXPECT_TRUE(folderListsEntries("\\")) << "the root of the current drive";
  for (const char* name :
       {"missing\\", "file\\", "empty  \\", "em*\\", "empty", "missing\\empty\\"}) {
    EXPECT_FALSE(folderListsEntries(folder + name)) << name;
  }
}

TEST_F(Files, AreDeletedOrSayWhyNot) {
  ASSERT_TRUE(writeTextFile(folder + "file", {}));
  EXPECT_TRUE(deleteFile(folder + "file"));
  EXPECT_FALSE(fileExists(folder + "file"));
  const struct {
    const char* name;
    ErrorKind kind;
    long code;
  } table[] = {{"file", ErrorKind::kNotFound, 2},
               {"none\\file", ErrorKind::kOutOfReach, 3},
               {"sub", ErrorKind::kOther, 5},
               {"read-only", ErrorKind::kOther, 5},
               {"held", ErrorKind::kBusy, 32}};
  world.makeFolder(folder + "sub");
  world.append(folder + "read-only", "kept");
  world.makeReadOnly(folder + "read-only");
  world.append(folder + "held", "kept");
  auto held = world.hold(folder + "held");
  for (const auto& row : table) {
    const Status deleted = deleteFile(folder + row.name);
    ASSERT_FALSE(deleted) << row.name;
    EXPECT_EQ(deleted.error().kind, row.kind) << row.name;
    EXPECT_EQ(deleted.error().code, row.code) << row.name;
    EXPECT_EQ(deleted.error().path, folder + row.name);
    EXPECT_GT(deleted.error().text.size(), 10u);
  }
  EXPECT_EQ(bytesOf(folder + "read-only"), "kept");
  held.reset();
  EXPECT_EQ(bytesOf(folder + "held"), "kept");
  EXPECT_TRUE(deleteFile(folder + "held"));
}

TEST_F(Files, CannotBeWrittenEverywhere) {
  world.makeFolder(folder + "sub");
  world.append(folder + "held", "kept");
  const struct {
    const char* name;
    ErrorKind kind;
  } table[] = {{"none\\file", ErrorKind::kOutOfReach},
               {"sub", ErrorKind::kOther},
               {"wild*card", ErrorKind::kOther},
               {"held", ErrorKind::kBusy}};
  const auto held = world.hold(folder + "held");
  for (const auto& row : table) {
    const Status written = writeTextFile(folder + row.name, {"new"});
    ASSERT_FALSE(written) << row.name;
    EXPECT_EQ(written.error().kind, row.kind) << row.name << ": " << written.error().text;
    EXPECT_EQ(written.error().path, folder + row.name);
  }
  const auto opened = openForReading(folder + "held");
  ASSERT_FALSE(opened);
  EXPECT_EQ(opened.error().kind, ErrorKind::kBusy);
}

TEST_F(Files, ThatAreReadOnlyAreNotReplaced) {
  if (!world.guardsReadOnlyFiles()) GTEST_SKIP() << "this system lets anybody write to them";
  world.append(folder + "read-only", "kept");
  world.makeReadOnly(folder + "read-only");
  const Status written = writeTextFile(folder + "read-only", {"new"});
  ASSERT_FALSE(written);
  EXPECT_EQ(written.error().kind, ErrorKind::kOther);
  EXPECT_EQ(written.error().code, 5);
  EXPECT_EQ(bytesOf(folder + "read-only"), "kept");
}

TEST_F(Files, CannotBeReadIfThereAreNone) {
  world.makeFolder(folder + "sub");
  for (const auto& [name, kind] : {std::pair("missing", ErrorKind::kNotFound),
                                   std::pair("none\\file", ErrorKind::kOutOfReach)}) {
    const auto opened = openForReading(folder + name);
    ASSERT_FALSE(opened) << name;
    EXPECT_EQ(opened.error().kind, kind) << name;
  }
  EXPECT_FALSE(openForReading(folder + "sub"));
}

TEST_F(Files, LetOthersWriteAndDeleteWhileTheyAreRead) {
  const std::string path = folder + "growing.lst";
  world.append(path, "RUN \r\n");
  const auto opened = openForReading(path);
  ASSERT_TRUE(opened);
  FileReader& reader = *opened.value();
  EXPECT_EQ(reader.size().value(), 6u);
  EXPECT_EQ(restOf(reader), "RUN \r\n");
  EXPECT_EQ(restOf(reader), "");
  const std::string late("COM\0PLETED", 10);
  world.append(path, late);
  EXPECT_EQ(reader.size().value(), 16u) << "as it is now";
  EXPECT_EQ(restOf(reader), late);
  const auto second = openForReading(path);
  ASSERT_TRUE(second);
  EXPECT_TRUE(deleteFile(path));
  EXPECT_EQ(restOf(*second.value()).size(), 16u) << "what is open can be read to its end";
}

TEST_F(Files, CanBeHeldAsLongAsTheyAreNeeded) {
  const std::string path = folder + "held.lock";
  world.append(path, "the user's");
  EXPECT_EQ(holdFile(path, "mine").error().kind, ErrorKind::kBusy);
  EXPECT_EQ(bytesOf(path), "the user's");
  ASSERT_TRUE(deleteFile(path));
  auto held = holdFile(path, "mine");
  ASSERT_TRUE(held) << held.error().text;
  EXPECT_EQ(bytesOf(path), "mine");
  for (const ErrorKind kind : {holdFile(path, "").error().kind, deleteFile(path).error().kind,
                               writeTextFile(path, {}).error().kind}) {
    EXPECT_EQ(kind, ErrorKind::kBusy);
  }
  EXPECT_EQ(bytesOf(path), "mine");
  held.value().reset();
  EXPECT_FALSE(fileExists(path));
  EXPECT_TRUE(holdFile(path, "again")) << "and gone at once";
  EXPECT_FALSE(fileExists(path));
  EXPECT_EQ(holdFile(folder + "none\\file", "").error().kind, ErrorKind::kOutOfReach);
  EXPECT_FALSE(holdFile(folder, "") || holdFile(folder + "NUL", ""));
}

}  // namespace
}  // namespace korventally::testing
