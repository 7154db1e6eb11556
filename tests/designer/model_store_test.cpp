#include "designer/model_store.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "model/document.h"
#include "runtime/code_page.h"
#include "tests/designer/layouts.h"
#include "tests/fakes/fake_pictures.h"

namespace qm::designer {
namespace {

using runtime::Locale;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Gaps in the indexes close when a model is loaded.
std::string WithoutKeys(std::string bytes) {
  constexpr std::string_view kKey = " Key=\"";
  for (auto at = bytes.find(kKey); at != std::string::npos; at = bytes.find(kKey, at))
    bytes.erase(at, bytes.find('"', at + kKey.size()) + 1 - at);
  return bytes;
}

struct ModelStore : testing::Test {
  Locale locale = Locale::Spanish();
  std::vector<std::u16string> loaded;  // the names of the pictures asked for
  bool picturesLoad = true;

  Layout Read(std::string_view model) { return ReadAfter(NewLayout(locale), model); }
  Layout ReadAfter(const Layout& former, std::string_view model) {
    const auto document = model::ModelDocument::Parse("<Modelos>" + std::string(model) + "</Modelos>");
    return ReadLayout(document.Find(1).value(), former, locale,
                      [&](std::u16string_view name) {
                        loaded.emplace_back(name);
                        return picturesLoad ? std::make_shared<const fakes::FakePicture>(4, 3)
                                            : PicturePointer();
                      })
        .layout;
  }
  Field ReadOnlyField(std::string_view elements) {
    std::string model = "<Modelo Numero=\"1\"><Campo>";
    model.append(elements).append("</Campo></Modelo>");
    return *Read(model).At(1);
  }
  std::string Saved(const Layout& layout) {
    auto document = model::ModelDocument::Parse("");
    document.Replace(ModelOf(layout, 1, u"C:\\Modelos\\"), locale);
    return document.Serialize();
  }
};

TEST_F(ModelStore, AModelsAttributesBecomeThePageSettings) {
  const Layout layout = Read(
      "<Modelo Numero=\"1\" Width=\"11905,5\" Height=\"5670\" Copias=\"3\" Printer=\"HP (caja)\" "
      "EsEtiqueta=\"1\"/>");
  EXPECT_EQ(layout.ancho, u"20,99735");
  EXPECT_EQ(layout.alto, u"10");
  EXPECT_EQ(layout.pageHeightCm, 10);
  EXPECT_EQ(layout.canvasHeight, 5670);
  EXPECT_NEAR(layout.canvasWidth, 11905.5, 0.005);
  EXPECT_EQ(layout.copias, u"03");
  EXPECT_EQ(layout.printer, u"HP (caja)");
  EXPECT_TRUE(layout.esEtiqueta);
}

TEST_F(ModelStore, ThePageReadsADecimalPointAsWell) {
  EXPECT_EQ(Read(R"(<Modelo Numero="1" Width="11905.5"/>)").ancho, u"20,99735");
}

TEST_F(ModelStore, WhatAModelDoesNotSayOfThePageStaysAsItWas) {
  Layout former = NewLayout(locale);
  former.copias = u"05";
  former.printer = u"HP";
  former.imagen = u"fondo.bmp";
  former.logo = tests::LogoAt({1, 2, 3, 4});
  former.men.push_back(tests::FieldWith({}));
  const Layout layout = ReadAfter(former, R"(<Modelo Numero="1" Height="5670"/>)");
  EXPECT_EQ(layout.ancho, u"21");
  EXPECT_EQ(layout.copias, u"05");
  EXPECT_EQ(layout.printer, u"HP");
  EXPECT_EQ(layout.imagen, u"");
  EXPECT_EQ(layout.logo, nullptr);
  EXPECT_EQ(layout.men.size(), 1U);
}

TEST_F(ModelStore, CopiesAreChosenByTheirValueAndOthersKeptAsWritten) {
  const auto copias = [&](const std::string& text) {
    return Read("<Modelo Numero=\"1\" Copias=\"" + text + "\"/>").copias;
  };
  EXPECT_EQ(copias("1"), u"01");
  EXPECT_EQ(copias("07"), u"07");
  EXPECT_EQ(copias("10"), u"10");
  EXPECT_EQ(copias("12"), u"12");
  EXPECT_EQ(copias("0"), u"0");
  EXPECT_EQ(copias(""), u"");
  EXPECT_EQ(copias("99999999999"), u"99999999999");
  EXPECT_EQ(copias("1E999"), u"1E999");
}

TEST_F(ModelStore, ALabelSheetIsOneWhoseFlagIsOne) {
  const auto ticked = [&](const std::string& text) {
    return Read("<Modelo Numero=\"1\" EsEtiqueta=\"" + text + "\"/>").esEtiqueta;
  };
  EXPECT_TRUE(ticked("1"));
  EXPECT_TRUE(ticked(" 1 "));
  EXPECT_FALSE(ticked("0"));
  EXPECT_FALSE(ticked("2"));
  EXPECT_FALSE(ticked("-1"));
  EXPECT_FALSE(ticked("Verdadero"));
}

TEST_F(ModelStore, AFieldIsReadByTheNamesOfItsElements) {
  const Field field = ReadOnlyField(
      "<Descripcion>TOTAL</Descripcion><Top>1440,5</Top><Left>567</Left><Width>2000</Width>"
      "<Height>300</Height><ForeColor>255</ForeColor><Bold>Verdadero</Bold><FontSize>8,25</FontSize>"
      "<FontItalic>True</FontItalic><Alignment>1</Alignment><Underline>-1</Underline>"
      "<FontName>Courier New</FontName><Otro>x</Otro>");
  EXPECT_EQ(field.caption, u"TOTAL");
  EXPECT_EQ(field.box, (Box{567, 1440.5F, 2000, 300}));
  EXPECT_EQ(field.font, (FieldFont{u"Courier New", 8.25F, true, true, true, false, 255}));
  EXPECT_EQ(field.alignment, 1);
  EXPECT_EQ(field.tag, u"");
}

TEST_F(ModelStore, PositionsReadTheSameWhereverTheModelWasWritten) {
  locale = Locale::English();
  EXPECT_EQ(ReadOnlyField("<Top>1440,5</Top>").box.top, 1440.5F);
  EXPECT_EQ(ReadOnlyField("<Top>1440.5</Top>").box.top, 1440.5F);
}

TEST_F(ModelStore, ASizeAboveSixHundredIsInHundredthsOfAPoint) {
  EXPECT_EQ(ReadOnlyField("<FontSize>825</FontSize>").font.size, 8.25F);
  EXPECT_EQ(ReadOnlyField("<FontSize>72</FontSize>").font.size, 72);
  EXPECT_EQ(ReadOnlyField("<FontSize>600</FontSize>").font.size, 600);
}

TEST_F(ModelStore, WhatIsNoNumberLeavesColourAndSizeAsTheyWere) {
  const Field field = ReadOnlyField(
      "<ForeColor>rojo</ForeColor><FontSize>grande</FontSize><Alignment>7</Alignment><Top>arriba</Top>"
      "<Alignment>1E999</Alignment>");
  EXPECT_EQ(field.font.foreColor, 0);
  EXPECT_EQ(field.font.size, 10);
  EXPECT_EQ(field.alignment, 0);
  EXPECT_EQ(field.box.top, 0);
}

TEST_F(ModelStore, ColoursOfTheSystemAreLargeNegativeNumbers) {
  EXPECT_EQ(ReadOnlyField("<ForeColor>-2147483640</ForeColor>").font.foreColor, -2147483640);
  EXPECT_EQ(ReadOnlyField("<ForeColor>4294967296</ForeColor>").font.foreColor, 0);
}

TEST_F(ModelStore, AFieldHasFromTheOneBeforeItWhatItDoesNotSayAsItPrints) {
  const Layout layout = Read(
      "<Modelo Numero=\"1\"><Campo><Descripcion>A</Descripcion><Top>100</Top><Left>50</Left>"
      "<FontName>Courier New</FontName></Campo><Campo><Descripcion>B</Descripcion><Left>70</Left></Campo>"
      "</Modelo>");
  EXPECT_EQ(layout.At(2)->caption, u"B");
  EXPECT_EQ(layout.At(2)->box.top, 100);
  EXPECT_EQ(layout.At(2)->box.left, 70);
  EXPECT_EQ(layout.At(2)->font.name, u"Courier New");
}

TEST_F(ModelStore, ALogoIsReadFromItsFivePieces) {
  const Layout layout = Read(R"(<Modelo Numero="1" ImagenLogo="logo.bmp|567|1134,5|2000|1000"/>)");
  ASSERT_TRUE(layout.logo);
  EXPECT_EQ(layout.logo->archivo, u"logo.bmp");
  EXPECT_EQ(layout.logo->box, (Box{567, 1134.5F, 2000, 1000}));
  EXPECT_TRUE(layout.logo->picture);
  EXPECT_THAT(loaded, ElementsAre(u"logo.bmp"));
}

TEST_F(ModelStore, AnEmptyOrShortLogoTextIsTakenAsFarAsItGoes) {
  EXPECT_EQ(Read(R"(<Modelo Numero="1" ImagenLogo="" Imagen=""/>)").logo, nullptr);
  EXPECT_EQ(Read(R"(<Modelo Numero="1" ImagenLogo="|1|2|3|4"/>)").logo, nullptr);
  EXPECT_THAT(loaded, IsEmpty());
  EXPECT_EQ(Read(R"(<Modelo Numero="1" ImagenLogo="logo.bmp|567"/>)").logo->box, (Box{567, 0, 0, 0}));
}

TEST_F(ModelStore, PicturesThatCannotBeLoadedKeepTheirPlaceInTheModel) {
  picturesLoad = false;
  const Layout layout =
      Read(R"(<Modelo Numero="1" Imagen="fondo.bmp" ImagenLogo="logo.bmp|1|2|3|4"><Campo/></Modelo>)");
  EXPECT_EQ(layout.background, nullptr);
  EXPECT_NE(layout.At(1), nullptr);
  const std::string saved = Saved(layout);
  EXPECT_NE(saved.find(R"(Imagen="fondo.bmp" ImagenLogo="logo.bmp|1|2|3|4")"), std::string::npos) << saved;
}

TEST_F(ModelStore, PicturesInTheImageFolderAreWrittenByTheirBareNames) {
  Layout layout = NewLayout(locale);
  layout.imagen = u"c:\\modelos\\fondo.bmp";
  Logo logo;
  logo.archivo = u"D:\\logos\\logo.bmp";
  layout.logo = std::make_shared<const Logo>(logo);
  const model::ModelToSave model = ModelOf(layout, 1, u"C:\\Modelos\\");
  EXPECT_EQ(model.imagen, u"fondo.bmp");
  EXPECT_EQ(model.imagenLogo->path, u"D:\\logos\\logo.bmp");
}

TEST_F(ModelStore, ASavedModelIsWrittenInTheFilesTerms) {
  Layout layout = NewLayout(locale);
  layout.copias = u"02";
  layout.printer = u"HP";
  layout.esEtiqueta = true;
  Field field;
  field.caption = u"TOTAL";
  field.box = {567, 1440.5F, 2000, 300};
  field.font = {u"Courier New", 8.25F, true, false, true, true, 255};
  field.alignment = 2;
  layout.men = {nullptr, nullptr, std::make_shared<const Field>(field)};
  EXPECT_EQ(Saved(layout),
            "<Modelos><Modelo Numero=\"1\" Width=\"11907\" Height=\"16839,9\" Copias=\"02\" Printer=\"HP\" "
            "EsEtiqueta=\"1\" Logo=\"1\"><Campo Key=\"2\"><Descripcion>TOTAL</Descripcion><Top>1440,5</Top>"
            "<Left>567</Left><Width>2000</Width><Height>300</Height><ForeColor>255</ForeColor>"
            "<Bold>Verdadero</Bold><FontSize>8,25</FontSize><FontItalic>Falso</FontItalic>"
            "<Alignment>2</Alignment><Underline>Verdadero</Underline><FontName>Courier New</FontName></Campo>"
            "</Modelo></Modelos>");
}

TEST_F(ModelStore, AFormatStandsInThePlaceOfTheFontsName) {
  Layout layout = NewLayout(locale);
  Field field;
  field.font.name = u"Courier New";
  field.tag = u"3";
  layout.men.push_back(std::make_shared<const Field>(field));
  EXPECT_EQ(ModelOf(layout, 1, u"").fields.at(0).fontName, u"3");
}

TEST_F(ModelStore, AFormatComesBackAsTheNameOfAFontAndGoesOutAgainAsItWas) {
  const Layout layout = Read("<Modelo Numero=\"1\"><Campo><FontName>3</FontName></Campo></Modelo>");
  EXPECT_EQ(layout.At(1)->font.name, u"3");
  EXPECT_EQ(layout.At(1)->tag, u"");
  EXPECT_EQ(ModelOf(layout, 1, u"").fields.at(0).fontName, u"3");
}

TEST_F(ModelStore, WhatWasSavedIsReadBackTheSame) {
  const std::string model =
      R"(<Modelo Numero="1" Width="8000" Height="11906" Copias="02" Printer="HP" EsEtiqueta="0" Logo="0" )"
      R"(Imagen="f.bmp" ImagenLogo="l.bmp|1|2,5|3|4"><Campo Key="1"><Descripcion>#Señor|</Descripcion>)"
      R"(<Top>1,25</Top><Left>-30</Left><Width>0</Width><Height>285</Height><ForeColor>0</ForeColor>)"
      R"(<Bold>Falso</Bold><FontSize>10</FontSize><FontItalic>Verdadero</FontItalic><Alignment>1</Alignment>)"
      R"(<Underline>Falso</Underline><FontName>Roman12</FontName></Campo></Modelo>)";
  std::string bytes = runtime::ToBytes(runtime::FromUtf8(model));
  EXPECT_EQ(Saved(Read(bytes)), "<Modelos>" + bytes + "</Modelos>");
}

// What a user's drags and dialogs may leave on the canvas, a hundred fields at a time.
TEST_F(ModelStore, AnyLayoutIsReadBackAsItWasWrittenAndWrittenAgainTheSame) {
  std::mt19937 random(20151231);
  const auto number = [&](int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); };
  const auto twips = [&] {
    return static_cast<float>(number(-40000, 120000)) / static_cast<float>(number(1, 4));
  };
  for (const Locale& written : {Locale::Spanish(), Locale::English()}) {
    locale = written;
    for (int run = 0; run < 20; ++run) {
      Layout layout = NewLayout(locale);
      SetPageSize(layout, static_cast<float>(number(1, 4999)) / 100,
                  static_cast<float>(number(1, 49999)) / 1000);
      layout.copias = kCopias[static_cast<std::size_t>(number(0, 9))];
      layout.esEtiqueta = number(0, 1) == 1;
      for (int i = 0; i < 100; ++i) {
        Field field;
        for (int letters = number(0, 12); letters > 0; --letters)
          field.caption += static_cast<char16_t>(number(0x20, 0x2FF));
        field.box = {twips(), twips(), twips(), twips()};
        field.font = {u"Arial",
                      static_cast<float>(number(1, 2400)) / 4,
                      number(0, 1) == 1,
                      number(0, 1) == 1,
                      number(0, 1) == 1,
                      false,
                      number(INT32_MIN, INT32_MAX)};
        field.alignment = number(0, 2);
        layout.men.push_back(number(0, 9) == 0 ? nullptr : std::make_shared<const Field>(std::move(field)));
      }
      const std::string bytes = Saved(layout);
      const auto document = model::ModelDocument::Parse(bytes);
      const Layout read = ReadLayout(document.Find(1).value(), NewLayout(locale), locale, {}).layout;
      ASSERT_EQ(WithoutKeys(Saved(read)), WithoutKeys(bytes));
      std::erase(layout.men, nullptr);
      for (std::size_t i = 0; i < layout.men.size(); ++i)
        ASSERT_EQ(read.men[i + 1]->caption, layout.men[i]->caption);
    }
  }
}

}  // namespace
}  // namespace qm::designer
