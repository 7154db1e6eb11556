#include "data/definition_file.h"

#include <gmock/gmock.h>

#include "runtime/error.h"
#include "tests/data/definition_bytes.h"
#include "tests/fakes/memory_files.h"

namespace qm::data {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using tests::DefinitionBytes;

// The number of the error, or 0.
int ErrorOf(std::string_view bytes) {
  try {
    (void)ParseDefinition(bytes);
  } catch (const runtime::RuntimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(DefinitionFile, GivesTheTitleAsItStandsAndTheNamesTrimmed) {
  const Definition read =
      ParseDefinition(DefinitionBytes("03", "  Clientes", {"NOMBRE", "  NIF", "A\xD1O DE ALTA"}));
  EXPECT_EQ(read.title, u"  Clientes             ");
  EXPECT_THAT(read.names, ElementsAre(u"NOMBRE", u"NIF", u"AÑO DE ALTA"));
}

TEST(DefinitionFile, OfNoLengthDefinesNothing) {
  const Definition read = ParseDefinition("");
  EXPECT_EQ(read.title, u"");
  EXPECT_THAT(read.names, IsEmpty());
}

TEST(DefinitionFile, NamesFillTheirTwentyThreeCharactersAndNoMore) {
  const Definition read = ParseDefinition(DefinitionBytes(" 1", "T", {"ABCDEFGHIJKLMNOPQRSTUVWXYZ"}));
  EXPECT_THAT(read.names, ElementsAre(u"ABCDEFGHIJKLMNOPQRSTUVW"));
}

TEST(DefinitionFile, OnlyBlanksAreTrimmedFromNames) {
  const std::string_view name("\tNIF\0", 5);
  EXPECT_THAT(ParseDefinition(DefinitionBytes("1", "T", {name})).names,
              ElementsAre(std::u16string(u"\tNIF\0", 5)));
}

TEST(DefinitionFile, TheCountIsTheNumberAtTheStartOfItsTwoCharacters) {
  struct Row {
    const char* count;
    std::size_t fields;
  };
  const Row rows[] = {{"02", 2}, {"2 ", 2}, {" 2", 2}, {"2x", 2}, {"x2", 0}, {"  ", 0},
                      {"00", 0}, {"-2", 0}, {".5", 0}, {"1,", 1}, {"&H", 0}, {"1e", 1}};
  for (const Row& row : rows) {
    EXPECT_THAT(ParseDefinition(DefinitionBytes(row.count, "T", {"A", "B"})).names, SizeIs(row.fields))
        << row.count;
  }
}

TEST(DefinitionFile, WhatFollowsTheCountedFieldsIsIgnored) {
  EXPECT_THAT(ParseDefinition(DefinitionBytes("01", "T", {"A", "B"}) + "rest").names, ElementsAre(u"A"));
}

TEST(DefinitionFile, HasNinetyNineFieldsAtMost) {
  const std::vector<std::string_view> names(99, "CAMPO");
  EXPECT_THAT(ParseDefinition(DefinitionBytes("99", "T", names)).names, SizeIs(99));
}

TEST(DefinitionFile, CutShortInAUsedPieceIsError62) {
  const std::string whole = DefinitionBytes("02", "Clientes", {"NOMBRE", "NIF"});
  ASSERT_EQ(whole.size(), 99U);
  for (std::size_t length = 1; length < 97; ++length)
    EXPECT_EQ(ErrorOf(std::string_view(whole).substr(0, length)), 62) << length;
  for (std::size_t length = 97; length <= 99; ++length)  // the last two bytes are not used
    EXPECT_EQ(ErrorOf(std::string_view(whole).substr(0, length)), 0) << length;
}

TEST(DefinitionFile, WithoutFieldsNeedsItsCountAndTitleOnly) {
  const std::string whole = DefinitionBytes("00", "Clientes", {});
  for (std::size_t length = 1; length < 25; ++length)
    EXPECT_EQ(ErrorOf(std::string_view(whole).substr(0, length)), 62) << length;
  for (std::size_t length = 25; length <= 33; ++length)
    EXPECT_EQ(ErrorOf(std::string_view(whole).substr(0, length)), 0) << length;
}

TEST(DefinitionFile, IsNamedByTheTablePathAndIsMadeEmptyWhenMissing) {
  fakes::MemoryFiles files;
  EXPECT_THAT(ReadDefinition(files, u"C:\\DATOS\\CLIEN").names, IsEmpty());
  EXPECT_EQ(files.contents.at(u"C:\\DATOS\\CLIEN.Qma"), "");
  files.contents[u"C:\\DATOS\\CLIEN.Qma"] = DefinitionBytes("01", "Clientes", {"NIF"});
  EXPECT_THAT(ReadDefinition(files, u"C:\\DATOS\\CLIEN").names, ElementsAre(u"NIF"));
  EXPECT_TRUE(files.replacements.empty());
}

TEST(DefinitionFile, OfAnyLengthIsReadAsFarAsItCanBeUsed) {
  fakes::MemoryFiles files;
  const std::vector<std::string_view> names(99, "CAMPO");
  files.contents[u"T.Qma"] = DefinitionBytes("99", "T", names) + std::string(100000, 'x');
  EXPECT_THAT(ReadDefinition(files, u"T").names, SizeIs(99));
}

TEST(CellNames, AreTheFieldsTrimmedNameAndTheTagInParentheses) {
  EXPECT_EQ(CellName(u"  NOMBRE   ", TableTag(u"C:\\DATOS\\CLIEN")), u"NOMBRE (CLIEN)");
  EXPECT_EQ(CellName(u"", TableTag(u"C:\\DATOS\\CLIENTES")), u" (ENTES)");
}

TEST(CellNames, AShortTablePathIsTheTagAsAWhole) {
  EXPECT_EQ(TableTag(u"CLI"), u"CLI");
  EXPECT_EQ(TableTag(u"CLIEN"), u"CLIEN");
  EXPECT_EQ(CellName(u"NIF", TableTag(u"")), u"NIF ()");
}

}  // namespace
}  // namespace qm::data
