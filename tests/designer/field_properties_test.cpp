// The properties of a field: lists, sample, and what acceptance applies.

#include "designer/field_properties.h"

#include <gmock/gmock.h>

#include "tests/designer/designing_world.h"

namespace qm::designer {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char16_t kPrinter[] = u"Impresora A4";

Field PlainField(std::u16string caption) {
  Field field;
  field.caption = std::move(caption);
  field.box = {100, 200, 3000, 240};
  return field;
}

struct Properties : testing::Test, DesigningWorld {
  Properties() {
    printers.fonts[kPrinter] = {u"Sistema", u"Arial", u"Courier New", u"", u"Roman12"};
    first = PlainField(u"NOMBRE");
    second = PlainField(u"#Factura");
    second.font = {u"Courier New", 12, true, false, false, true, 0x0000FF};
    second.tag = u"3";
  }

  Field first;
  Field second;
  Document document;

  FieldProperties Of(int index) {
    document.Start([&] {
      Layout layout;
      layout.men.push_back(std::make_shared<const Field>(first));
      layout.men.push_back(nullptr);
      layout.men.push_back(std::make_shared<const Field>(second));
      return layout;
    }());
    return {document, index, printers, kPrinter, dialogs, runtime::Locale::Spanish()};
  }
  [[nodiscard]] const Field& Now(int index) const { return *document.Current().At(index); }
};

using ListsOfProperties = Properties;

TEST_F(ListsOfProperties, HaveTheirEntries) {
  const FieldProperties properties = Of(1);
  EXPECT_THAT(properties.Justificar().entries, ElementsAre(u"Izquierda", u"Derecha", u"Centrada"));
  EXPECT_THAT(properties.EstiloList().entries,
              ElementsAre(u"Normal", u"Cursiva", u"Negrita", u"Negrita Cursiva"));
  EXPECT_THAT(properties.TamañoList().entries,
              ElementsAre(u"8", u"9", u"10", u"11", u"12", u"14", u"16", u"18", u"20", u"22", u"24", u"26",
                          u"28", u"36", u"48", u"72"));
}

TEST_F(ListsOfProperties, OfFormatsAreEightTheLastWithSixDecimals) {
  EXPECT_THAT(Of(1).Formato().entries, ElementsAre(u"Texto", u"Númerico con 0 decimales",
                                                   u"Númerico con 1 decimales", u"Númerico con 2 decimales",
                                                   u"Númerico con 3 decimales", u"Númerico con 4 decimales",
                                                   u"Númerico con 5 decimales", u"Númerico con 6 decimales"));
}

TEST_F(ListsOfProperties, OfFontsAreAskedForFromPositionOneOnWithoutTheNameless) {
  EXPECT_THAT(Of(1).FuenList().entries, ElementsAre(u"Arial", u"Courier New", u"Roman12"));
}

TEST_F(ListsOfProperties, OfFontsAreEmptyForAPrinterWithNoneOneOrNotThere) {
  printers.fonts[kPrinter] = {};
  EXPECT_THAT(Of(1).FuenList().entries, IsEmpty());
  printers.fonts[kPrinter] = {u"Sistema"};
  EXPECT_THAT(Of(1).FuenList().entries, IsEmpty());
  printers.names.clear();
  EXPECT_THAT(Of(1).FuenList().entries, IsEmpty());
}

using LoadedProperties = Properties;

TEST_F(LoadedProperties, ShowThePlaceInTwipsAndTheAlignment) {
  first.box = {1440.5F, -20, 3000, 240};
  first.alignment = 2;
  const FieldProperties properties = Of(1);
  EXPECT_EQ(properties.BoxText(0), u"1440,5");
  EXPECT_EQ(properties.BoxText(1), u"-20");
  EXPECT_EQ(properties.BoxText(2), u"3000");
  EXPECT_EQ(properties.BoxText(3), u"240");
  EXPECT_EQ(properties.Justificar().selected, 2);
}

TEST_F(LoadedProperties, SelectTheFontIgnoringCase) {
  first.font.name = u"COURIER new";
  const FieldProperties properties = Of(1);
  EXPECT_EQ(properties.FuenList().selected, 1);
  EXPECT_EQ(properties.NombreFuente(), u"COURIER new");
  EXPECT_EQ(properties.LbL_Men().font.name, u"COURIER new");
}

TEST_F(LoadedProperties, SelectNoFontThatThePrinterDoesNotOffer) {
  first.font.name = u"Vieja Letra";
  FieldProperties properties = Of(1);
  EXPECT_EQ(properties.FuenList().selected, -1);
  properties.AplicaValores();
  EXPECT_EQ(Now(1).font.name, u"Vieja Letra");
}

TEST_F(LoadedProperties, OfSizeThirteenSelectNoSize) {
  first.font.size = 13;
  const FieldProperties properties = Of(1);
  EXPECT_EQ(properties.Tamaño(), u"13");
  EXPECT_EQ(properties.TamañoList().selected, -1);
}

TEST_F(LoadedProperties, OfSizeFourteenSelectIt) {
  first.font.size = 14;
  EXPECT_EQ(Of(1).TamañoList().selected, 5);
}

TEST_F(LoadedProperties, SelectTheStyleOfBoldAndItalic) {
  const struct {
    bool bold;
    bool italic;
    int style;
  } rows[] = {{false, false, 0}, {false, true, 1}, {true, false, 2}, {true, true, 3}};
  for (const auto& row : rows) {
    first.font.bold = row.bold;
    first.font.italic = row.italic;
    EXPECT_EQ(Of(1).EstiloList().selected, row.style);
  }
}

TEST_F(LoadedProperties, OfABoldItalicFieldShowNegritaCursiva) {
  first.font.bold = first.font.italic = true;
  const FieldProperties properties = Of(1);
  EXPECT_EQ(properties.EstiloList().entries[static_cast<std::size_t>(properties.EstiloList().selected)],
            u"Negrita Cursiva");
}

TEST_F(LoadedProperties, ShowUnderlineAndColour) {
  first.font.underline = true;
  first.font.foreColor = 0x00AB1234;
  const FieldProperties properties = Of(1);
  EXPECT_TRUE(properties.Subrayado());
  EXPECT_EQ(properties.NombreColor(), 0x00AB1234);
  EXPECT_FALSE(properties.Todos());
}

TEST_F(LoadedProperties, LetOnlyAFixedTextBeTyped) {
  EXPECT_FALSE(Of(1).LbL_Men().enabled);
  EXPECT_EQ(Of(1).LbL_Men().text, u"Hello");
  EXPECT_TRUE(Of(3).LbL_Men().enabled);
  EXPECT_EQ(Of(3).LbL_Men().text, u"Factura");
  first.caption = u"|Nota";
  EXPECT_FALSE(Of(1).LbL_Men().enabled);
}

TEST_F(LoadedProperties, ShowTheFormatThatTheTagStandsFor) {
  EXPECT_EQ(Of(1).Formato().selected, 0);
  EXPECT_EQ(Of(3).Formato().selected, 3);
  first.tag = u"7";
  EXPECT_EQ(Of(1).Formato().selected, 7);
}

TEST_F(LoadedProperties, KeepATagThatStandsForNoFormatUntilOneIsChosen) {
  for (const char16_t* tag : {u"8", u"0", u"Roman12"}) {
    first.tag = tag;
    FieldProperties properties = Of(1);
    EXPECT_EQ(properties.Formato().selected, 0);
    properties.AplicaValores();
    EXPECT_EQ(Now(1).tag, tag);
    properties.Formato_Click(0);
    properties.AplicaValores();
    EXPECT_EQ(Now(1).tag, u"");
  }
}

using SampleOfProperties = Properties;

TEST_F(SampleOfProperties, FollowsFontStyleSizeAndUnderline) {
  FieldProperties properties = Of(1);
  properties.FuenList_Click(2);
  properties.EstiloList_Click(3);
  properties.TamañoList_Click(15);
  properties.Subrayado_Click(true);
  EXPECT_EQ(properties.NombreFuente(), u"Roman12");
  EXPECT_EQ(properties.Tamaño(), u"72");
  EXPECT_EQ(properties.LbL_Men().font, (FieldFont{u"Roman12", 72, true, true, true, false, 0}));
  EXPECT_EQ(properties.LbL_Men().text, u"Hello");
}

TEST_F(SampleOfProperties, TakesEveryStyle) {
  FieldProperties properties = Of(3);
  for (int style = 0; style < 4; ++style) {
    properties.EstiloList_Click(style);
    EXPECT_EQ(properties.LbL_Men().font.bold, style == 2 || style == 3);
    EXPECT_EQ(properties.LbL_Men().font.italic, style == 1 || style == 3);
  }
}

TEST_F(SampleOfProperties, TakesASizeWithDecimalsAndKeepsTheLastOneWhileNoneIsTyped) {
  FieldProperties properties = Of(1);
  properties.Tamaño_Change(u"8,25");
  EXPECT_EQ(properties.LbL_Men().font.size, 8.25F);
  for (const char16_t* none : {u"", u"-", u"0", u"-4", u"grande", u"99999"}) {
    properties.Tamaño_Change(none);
    EXPECT_EQ(properties.Tamaño(), none);
    EXPECT_EQ(properties.LbL_Men().font.size, 8.25F);
  }
}

TEST_F(SampleOfProperties, ATypedSizeSelectsItsEntry) {
  FieldProperties properties = Of(1);
  properties.Tamaño_Change(u"9");
  EXPECT_EQ(properties.TamañoList().selected, 1);
  properties.Tamaño_Change(u"9,5");
  EXPECT_EQ(properties.TamañoList().selected, -1);
}

TEST_F(SampleOfProperties, OfAFixedTextKeepsTheTextTyped) {
  FieldProperties properties = Of(3);
  properties.LbL_Men_Change(u"Albarán");
  properties.FuenList_Click(0);
  EXPECT_EQ(properties.LbL_Men().text, u"Albarán");
}

TEST_F(SampleOfProperties, TakesTheColourChosenWithTheCurrentOneOfferedFirst) {
  FieldProperties properties = Of(3);
  properties.Command2_Click();
  EXPECT_EQ(properties.NombreColor(), 0x0000FF);
  dialogs.colors = {0x00FF8000};
  properties.Command2_Click();
  EXPECT_EQ(properties.NombreColor(), 0x00FF8000);
  EXPECT_EQ(properties.LbL_Men().font.foreColor, 0x00FF8000);
  EXPECT_THAT(dialogs.askedColors, ElementsAre(0x0000FF, 0x0000FF));
}

TEST_F(SampleOfProperties, IgnoresPositionsThatItsListsDoNotHave) {
  FieldProperties properties = Of(3);
  for (const int position : {-1, 99}) {
    properties.FuenList_Click(position);
    properties.EstiloList_Click(position);
    properties.TamañoList_Click(position);
    properties.Justificar_Click(position);
    properties.Formato_Click(position);
  }
  properties.AplicaValores();
  EXPECT_EQ(Now(3), second);
}

using AppliedProperties = Properties;

TEST_F(AppliedProperties, ChangeTheFieldOnAcceptanceOnlyAndInOneStep) {
  FieldProperties properties = Of(1);
  properties.FuenList_Click(1);
  properties.Tamaño_Change(u"12");
  properties.EstiloList_Click(2);
  properties.Subrayado_Click(true);
  properties.Formato_Click(3);
  properties.Justificar_Click(1);
  properties.Box_Change(0, u"567");
  properties.Box_Change(1, u"1134,5");
  properties.Box_Change(2, u"2000");
  properties.Box_Change(3, u"300");
  EXPECT_EQ(Now(1), first);
  EXPECT_FALSE(document.Modified());

  properties.AplicaValores();
  Field expected = first;
  expected.font = {u"Courier New", 12, true, false, true, false, 0};
  expected.tag = u"3";
  expected.alignment = 1;
  expected.box = {567, 1134.5F, 2000, 300};
  EXPECT_EQ(Now(1), expected);
  EXPECT_EQ(Now(3), second);
  EXPECT_TRUE(document.Modified());

  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(Now(1), first);
  EXPECT_FALSE(document.Undo());
}

TEST_F(AppliedProperties, ThatChangeNothingAreNoEdit) {
  first.box = {0.1F, 1.0F / 3, 1234567.8F, 240};
  FieldProperties properties = Of(1);
  properties.AplicaValores();
  EXPECT_EQ(Now(1), first);
  EXPECT_FALSE(document.Modified());
}

TEST_F(AppliedProperties, KeepAFixedTextAFixedText) {
  FieldProperties properties = Of(3);
  properties.LbL_Men_Change(u"#1 Copia para el cliente");
  properties.AplicaValores();
  EXPECT_EQ(Now(3).caption, u"##1 Copia para el cliente");
  properties.LbL_Men_Change(u"");
  properties.AplicaValores();
  EXPECT_EQ(Now(3).caption, u"#");
}

TEST_F(AppliedProperties, LeaveTheCaptionOfADataFieldAlone) {
  FieldProperties properties = Of(1);
  properties.LbL_Men_Change(u"otro");
  properties.AplicaValores();
  EXPECT_EQ(Now(1).caption, u"NOMBRE");
}

TEST_F(AppliedProperties, ReadAPositionThatIsNoNumberAsZero) {
  FieldProperties properties = Of(1);
  properties.Box_Change(0, u"");
  properties.Box_Change(1, u"arriba");
  properties.Box_Change(2, u"12abc");
  properties.Box_Change(3, u"-");
  properties.AplicaValores();
  EXPECT_EQ(Now(1).box, (Box{0, 0, 0, 0}));
}

TEST_F(AppliedProperties, ReadNumbersWithAPointOrAComma) {
  FieldProperties properties = Of(1);
  properties.Box_Change(0, u"10.5");
  properties.Box_Change(1, u"-10,5");
  properties.AplicaValores();
  EXPECT_EQ(Now(1).box.left, 10.5F);
  EXPECT_EQ(Now(1).box.top, -10.5F);
}

TEST_F(AppliedProperties, TakeNoNegativeOrEndlessSize) {
  FieldProperties properties = Of(1);
  properties.Box_Change(0, u"1E300");
  properties.Box_Change(2, u"-5");
  properties.AplicaValores();
  EXPECT_EQ(Now(1).box.left, 1e6F);
  EXPECT_EQ(Now(1).box.width, 0);
}

TEST_F(AppliedProperties, CarryStrikeThroughToTheField) {
  FieldProperties properties = Of(3);
  properties.EstiloList_Click(0);
  properties.AplicaValores();
  EXPECT_TRUE(Now(3).font.strikethru);
  EXPECT_FALSE(Now(3).font.bold);
}

using PropertiesForAll = Properties;

TEST_F(PropertiesForAll, SpreadTheFontInOneStep) {
  FieldProperties properties = Of(3);
  properties.Todos_Click(true);
  properties.TamañoList_Click(0);
  properties.AplicaValores();
  const FieldFont font{u"Courier New", 8, true, false, false, true, 0x0000FF};
  EXPECT_EQ(Now(1).font, font);
  EXPECT_EQ(Now(3).font, font);
  EXPECT_EQ(document.Current().At(2), nullptr);
  ASSERT_TRUE(document.Undo());
  EXPECT_EQ(Now(1), first);
  EXPECT_EQ(Now(3), second);
}

TEST_F(PropertiesForAll, MoveNoFieldNotEvenTheEditedOne) {
  FieldProperties properties = Of(3);
  properties.Todos_Click(true);
  for (std::size_t i = 0; i < FieldProperties::kBoxes; ++i) properties.Box_Change(i, u"7");
  properties.Justificar_Click(2);
  properties.AplicaValores();
  for (const int index : {1, 3}) {
    EXPECT_EQ(Now(index).box, (Box{100, 200, 3000, 240}));
    EXPECT_EQ(Now(index).alignment, 0);
  }
}

TEST_F(PropertiesForAll, LeaveEachFieldItsTextAndFormat) {
  FieldProperties properties = Of(3);
  properties.Todos_Click(true);
  properties.LbL_Men_Change(u"Albarán");
  properties.Formato_Click(5);
  properties.AplicaValores();
  EXPECT_EQ(Now(1).caption, u"NOMBRE");
  EXPECT_EQ(Now(1).tag, u"");
  EXPECT_EQ(Now(3).caption, u"#Albarán");
  EXPECT_EQ(Now(3).tag, u"5");
}

}  // namespace
}  // namespace qm::designer
