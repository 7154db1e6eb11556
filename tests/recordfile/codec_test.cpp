// The bytes of record files.

#include "recordfile/codec.h"

#include <gtest/gtest.h>

#include "recordfile/checksum.h"

namespace qm::recordfile {
namespace {

Table Clients() {
  return {u"CLIEN", {{u"NOMBRE", 0}, {u"ALTA", 5}}, {{u"Peña", u"151231"}, {u"", u"160101"}}};
}

Flaw FlawOf(std::string_view bytes) {
  const auto read = Decode(bytes);
  EXPECT_TRUE(std::holds_alternative<Flaw>(read)) << "it was read";
  return std::holds_alternative<Flaw>(read) ? std::get<Flaw>(read) : Flaw{-1};
}

TEST(Checksum, IsTheOneOfPngAndZip) {
  EXPECT_EQ(Crc32("123456789"), 0xCBF43926U);
  EXPECT_EQ(Crc32(""), 0U);
  EXPECT_EQ(Crc32("6789", Crc32("12345")), 0xCBF43926U);
}

TEST(RecordFileBytes, AreThoseOfTheDocumentedExample) {
  const Table table{u"CLIEN", {{u"NOMBRE", 0}, {u"ALTA", 5}}, {{u"Peña", u"151231"}}};
  std::string hex;
  for (const char byte : Encode(table)) {
    char digits[4];
    std::snprintf(digits, sizeof digits, "%02x ", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    hex += digits;
  }
  EXPECT_EQ(hex,
            "51 4d 46 49 4c 45 32 1a 01 00 00 00 50 00 00 00 "
            "92 7b 8c 7c 05 00 00 00 43 00 4c 00 49 00 45 00 "
            "4e 00 02 00 00 00 06 00 00 00 4e 00 4f 00 4d 00 "
            "42 00 52 00 45 00 05 00 04 00 00 00 41 00 4c 00 "
            "54 00 41 00 01 00 00 00 04 00 00 00 50 00 65 00 "
            "f1 00 61 00 06 00 00 00 31 00 35 00 31 00 32 00 "
            "33 00 31 00 ");
}

TEST(RecordFileBytes, GiveTheTableBack) {
  EXPECT_EQ(std::get<Table>(Decode(Encode(Clients()))), Clients());
  const Table bare{u"", {{u"", -1}}, {}};
  EXPECT_EQ(std::get<Table>(Decode(Encode(bare))), bare);
}

TEST(RecordFileBytes, KeepEveryCharacterOfATextAndUnpairedSurrogatesToo) {
  Table table{u"T", {{u"A", 0}}, {}};
  std::u16string all;
  for (int unit = 0; unit <= 0xFFFF; ++unit) all += static_cast<char16_t>(unit);
  table.records.push_back({all});
  EXPECT_EQ(std::get<Table>(Decode(Encode(table))), table);
}

TEST(RecordFileBytes, CutAnywhereAreDamaged) {
  const std::string whole = Encode(Clients());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_EQ(FlawOf(std::string_view(whole).substr(0, size)), Flaw::Damaged) << size;
  }
}

TEST(RecordFileBytes, WithAnyBitChangedAreRefused) {
  const std::string whole = Encode(Clients());
  for (std::size_t place = 0; place < whole.size(); ++place) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string changed = whole;
      changed[place] = static_cast<char>(changed[place] ^ (1 << bit));
      const Flaw flaw = FlawOf(changed);
      const Flaw expected = place < 8 ? Flaw::Foreign : Flaw::Damaged;
      const bool inVersion = place >= 8 && place < 12;  // a change there looks like a later version
      EXPECT_TRUE(flaw == expected || (inVersion && flaw == Flaw::Newer)) << place;
    }
  }
}

TEST(RecordFileBytes, WithSomethingBehindThemAreDamaged) {
  EXPECT_EQ(FlawOf(Encode(Clients()) + '\0'), Flaw::Damaged);
}

TEST(RecordFileBytes, OfAnotherKindAreForeign) {
  EXPECT_EQ(FlawOf("<Modelos/>"), Flaw::Foreign);
  EXPECT_EQ(FlawOf(std::string(100, '\0')), Flaw::Foreign);
}

TEST(RecordFileBytes, OfALaterVersionSayAsMuch) {
  std::string later = Encode(Clients());
  later[8] = 2;
  EXPECT_EQ(FlawOf(later), Flaw::Newer);
  later[8] = 0;
  EXPECT_EQ(FlawOf(later), Flaw::Damaged);
}

TEST(RecordFileBytes, ThatLieWithARightChecksumAreDamaged) {
  using namespace std::string_literals;
  const std::pair<const char*, std::string> lies[] = {
      {"no body", ""s},
      {"no field", "\0\0\0\0\0\0\0\0\0\0"s},
      {"more fields than there may be", "\0\0\0\0\x00\x80"s + std::string(6 * 32768 + 4, '\0')},
      {"a name longer than the file", "\xFF\xFF\xFF\xFF"s},
      {"more records than bytes", "\0\0\0\0\1\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF"s},
      {"something behind the last record", "\0\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0!"s},
  };
  for (const auto& [what, body] : lies) EXPECT_EQ(FlawOf(WithHeader(body)), Flaw::Damaged) << what;
}

}  // namespace
}  // namespace qm::recordfile
