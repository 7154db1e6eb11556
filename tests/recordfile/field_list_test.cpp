// The fields of a new file, as hosts write them.

#include "recordfile/field_list.h"

#include <gtest/gtest.h>

#include "runtime/error.h"

namespace qm::recordfile {
namespace {

TEST(FieldList, NamesFieldsAndTheirTypeCodes) {
  const std::vector<FieldDefinition> expected{{u"NOMBRE", 0}, {u"CUOTA", 3}, {u"ALTA", 5}, {u"MAYOR", 32767}};
  EXPECT_EQ(ParseFieldList(u"NOMBRE;CUOTA,3; ALTA , 5 ;MAYOR,32767"), expected);
  EXPECT_EQ(ParseFieldList(u"DOS PALABRAS"), (std::vector<FieldDefinition>{{u"DOS PALABRAS", 0}}));
}

TEST(FieldList, RefusesWhatIsNoListOfFields) {
  const std::u16string_view refused[] = {u"",     u";",       u"A;",    u"A;;B",
                                         u",3",   u"A,",      u"A,x",   u"A,3,4",
                                         u"A,-1", u"A,32768", u"A,1.5", u"A,99999999999999999999"};
  for (const std::u16string_view text : refused) {
    try {
      static_cast<void>(ParseFieldList(text));
      ADD_FAILURE() << "accepted: " << std::string(text.begin(), text.end());
    } catch (const runtime::RuntimeError& error) {
      EXPECT_EQ(error.number(), 5);
    }
  }
}

TEST(FieldList, HoldsAtMost32767Fields) {
  std::u16string text = u"A";
  for (int i = 1; i < 32767; ++i) text += u";A";
  EXPECT_EQ(ParseFieldList(text).size(), 32767U);
  try {
    static_cast<void>(ParseFieldList(text + u";A"));
    ADD_FAILURE();
  } catch (const runtime::RuntimeError& error) {
    EXPECT_EQ(error.number(), 6);
  }
}

}  // namespace
}  // namespace qm::recordfile
