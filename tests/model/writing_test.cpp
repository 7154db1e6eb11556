#include <gtest/gtest.h>

#include "model/document.h"
#include "runtime/error.h"
#include "tests/model/sample_models.h"

namespace qm::model {
namespace {

using runtime::Locale;

std::string Saved(std::string_view before, const ModelToSave& model,
                  const Locale& locale = Locale::Spanish()) {
  ModelDocument document = ModelDocument::Parse(before);
  document.Replace(model, locale);
  return document.Serialize();
}

ModelToSave Bare(std::int32_t numero) {
  ModelToSave model;
  model.numero = numero;
  return model;
}

TEST(WritingAModel, GivesElementsAndAttributesInTheirOrder) {
  EXPECT_EQ(Saved("", SampleModel(5)),
            "<Modelos><Modelo Numero=\"5\" Width=\"11905,5\" Height=\"16838\" Copias=\"2\" "
            "Printer=\"Impresora de facturaci\xF3n\" EsEtiqueta=\"0\" Logo=\"0\">"
            "<Campo Key=\"1\"><Descripcion>NOMBRE</Descripcion><Top>1440</Top><Left>567</Left>"
            "<Width>2000,5</Width><Height>240</Height><ForeColor>16711680</ForeColor><Bold>Verdadero</Bold>"
            "<FontSize>8,25</FontSize><FontItalic>Falso</FontItalic><Alignment>1</Alignment>"
            "<Underline>Verdadero</Underline><FontName>Arial</FontName></Campo>"
            "<Campo Key=\"3\"><Descripcion>#A\xF1o</Descripcion><Top>1440</Top><Left>567</Left>"
            "<Width>2000,5</Width><Height>240</Height><ForeColor>16711680</ForeColor><Bold>Verdadero</Bold>"
            "<FontSize>8,25</FontSize><FontItalic>Falso</FontItalic><Alignment>1</Alignment>"
            "<Underline>Verdadero</Underline><FontName>Arial</FontName></Campo>"
            "</Modelo></Modelos>");
}

TEST(WritingAModel, UsesTheUsersDecimalSignAndBooleanWords) {
  const std::string saved = Saved("", SampleModel(5), Locale::English());
  EXPECT_NE(saved.find("Width=\"11905.5\""), saved.npos);
  EXPECT_NE(saved.find("<FontSize>8.25</FontSize><FontItalic>False</FontItalic>"), saved.npos);
  EXPECT_NE(saved.find("<Bold>True</Bold>"), saved.npos);
}

TEST(WritingAModel, WritesSystemColoursAsNegativeNumbers) {
  ModelToSave model = SampleModel(1);
  model.fields[0].foreColor = static_cast<std::int32_t>(0x80000008U);
  EXPECT_NE(Saved("", model).find("<ForeColor>-2147483640</ForeColor>"), std::string::npos);
}

TEST(WritingAModel, AddsTheBackgroundAndTheLogoOnlyWhenThereAreSome) {
  ModelToSave model = Bare(1);
  EXPECT_EQ(
      Saved("", model),
      "<Modelos><Modelo Numero=\"1\" Width=\"0\" Height=\"0\" Copias=\"\" Printer=\"\" EsEtiqueta=\"0\" "
      "Logo=\"0\"/></Modelos>");
  model.imagen = u"fondo.jpg";
  model.imagenLogo = LogoBox{u"C:\\Logos\\logo.bmp", 283.5F, 0, 1134, 567.25F};
  EXPECT_EQ(
      Saved("", model),
      "<Modelos><Modelo Numero=\"1\" Width=\"0\" Height=\"0\" Copias=\"\" Printer=\"\" EsEtiqueta=\"0\" "
      "Logo=\"0\" Imagen=\"fondo.jpg\" ImagenLogo=\"C:\\Logos\\logo.bmp|283,5|0|1134|567,25\"/></Modelos>");
}

TEST(WritingAModel, GivesLogoTheLabelFlagToo) {
  ModelToSave model = Bare(1);
  model.esEtiqueta = true;
  EXPECT_NE(Saved("", model).find("EsEtiqueta=\"1\" Logo=\"1\""), std::string::npos);
  model.imagenLogo = LogoBox{};
  model.esEtiqueta = false;
  EXPECT_NE(Saved("", model).find("EsEtiqueta=\"0\" Logo=\"0\""), std::string::npos);
}

TEST(SavingAModel, MovesItToTheEndReplacedWhole) {
  const std::string saved = Saved(
      "<Modelos><Modelo Numero=\"1\"/><Modelo Numero=\"3\" Viejo=\"x\"><Campo/></Modelo><Modelo "
      "Numero=\"5\"/></Modelos>",
      Bare(3));
  EXPECT_EQ(
      saved,
      "<Modelos><Modelo Numero=\"1\"/><Modelo Numero=\"5\"/><Modelo Numero=\"3\" Width=\"0\" Height=\"0\" "
      "Copias=\"\" Printer=\"\" EsEtiqueta=\"0\" Logo=\"0\"/></Modelos>");
}

TEST(SavingAModel, IntoAnEmptyFileGivesOneModelAndNothingElse) {
  const std::string saved = Saved("", Bare(7));
  EXPECT_EQ(saved.rfind("<Modelos><Modelo Numero=\"7\" ", 0), 0U);
  EXPECT_EQ(saved.find("<Modelo ", 12), saved.npos);
  EXPECT_TRUE(saved.ends_with("/></Modelos>"));
}

TEST(SavingAModel, RemovesOnlyTheFirstOfSeveralOfItsNumber) {
  const std::string saved =
      Saved("<Modelos><Modelo Numero=\"3\" A=\"1\"/><Modelo Numero=\"3\" A=\"2\"/></Modelos>", Bare(3));
  EXPECT_EQ(saved.rfind("<Modelos><Modelo Numero=\"3\" A=\"2\"/><Modelo Numero=\"3\" Width", 0), 0U);
}

TEST(SavingAModel, KeepsWhatOtherModelsHoldAndItDoesNotKnow) {
  const std::string others =
      "<Modelos version=\"9\"><!-- de Ana & co <x> --><Modelo Numero=\"1\" "
      "Otro=\"&lt;&amp;&quot;'&#10;&#9;&#13; \xF1\x80\">"
      "<Campo Key=\"1\" Extra=\"s\xED\"><Descripcion>  A &amp; B &lt; C &gt; D \"E\" 'F'  </Descripcion>"
      "<Nuevo><Hondo>\n</Hondo><![CDATA[<&]] >\x81]]></Nuevo></Campo><?ayuda a=\"1\" ?><?nada?>"
      "<Nota>mezcla <b>y</b> m\xE1s<!--c--></Nota></Modelo>suelto<Otra/>";
  const std::string added =
      "<Modelo Numero=\"2\" Width=\"0\" Height=\"0\" Copias=\"\" Printer=\"\" EsEtiqueta=\"0\" "
      "Logo=\"0\"/></Modelos>";
  EXPECT_EQ(Saved(others + "</Modelos>", Bare(2)), others + added);
}

TEST(SavingAModel, LeavesOtherModelsAsTheyAreByteForByteAndDropsWhiteSpaceBetweenThem) {
  const std::string one =
      "<Modelo  Numero = '1' >\r\n\t<Nota> <!--c-->&#32;\t<b />&#xA;</Nota >\n<T> \t</T></Modelo>";
  const std::string two = "<x:A\xF1o \xC1rea='&#9;'\n/>";
  const std::string saved = Saved("\n<Modelos >\r\n\t" + one + "\n\t" + two + "\n</Modelos>\n", Bare(2));
  const std::string expected = "<Modelos>" + one + two + "<Modelo Numero=\"2\" ";
  EXPECT_EQ(saved.substr(0, expected.size()), expected);
  EXPECT_EQ(Saved(saved, Bare(2)), saved);
}

TEST(SavingAModel, WritesOnlyTheRootElement) {
  const std::string saved = Saved("<Modelos/><!-- detrás --><?x?>", Bare(1));
  EXPECT_TRUE(saved.ends_with("</Modelos>"));
}

TEST(SavingAModel, OpensARootThatWasWrittenAsAnEmptyElement) {
  const std::string saved = Saved("<x:Mod\xE9los v='1' />", Bare(1));
  EXPECT_EQ(saved.rfind("<x:Mod\xE9los v='1'><Modelo Numero=\"1\"", 0), 0U);
  EXPECT_TRUE(saved.ends_with("/></x:Mod\xE9los>"));
  EXPECT_EQ(ModelDocument::Parse("<Modelos />").Serialize(), "<Modelos/>");
}

TEST(SavingAModel, GivesTheSameBytesWhenRepeated) {
  const std::string first =
      Saved("<Modelos><Modelo Numero='1' P='a\"b'>x</Modelo></Modelos>", SampleModel(2));
  EXPECT_EQ(Saved(first, SampleModel(2)), first);
}

TEST(SpecialCharacters, AreWrittenSoThatNothingIsLost) {
  ModelToSave model = Bare(1);
  model.printer = u"\"A\" & <B>\r\n\t'ñ€\u0416\U0001F600";
  model.fields = {SampleField(1, u"]]> & <x> \"q\"\r\n\tñ€\u0416\U0001F600\u0080")};
  const std::string saved = Saved("", model);
  EXPECT_NE(saved.find("Printer=\"&quot;A&quot; &amp; &lt;B&gt;&#13;&#10;&#9;'\xF1\x80&#1046;&#128512;\""),
            saved.npos);
  EXPECT_NE(
      saved.find(
          "<Descripcion>]]&gt; &amp; &lt;x&gt; \"q\"&#13;\n\t\xF1\x80&#1046;&#128512;&#128;</Descripcion>"),
      saved.npos);
}

TEST(SpecialCharacters, ThatXmlForbidsAreDroppedSoThatTheFileStaysReadable) {
  ModelToSave model = Bare(1);
  model.printer = std::u16string(u"HP\0\x0B\uFFFF 2", 7);
  model.fields = {SampleField(1, u"\x01\x1F")};
  const auto read = ModelDocument::Parse(Saved("", model)).Find(1);
  EXPECT_EQ(read->Attribute(u"Printer"), u"HP 2");
  EXPECT_EQ(read->fields[0][0].text, u"");
}

TEST(SpecialCharacters, HalfASurrogatePairBecomesTheReplacementCharacter) {
  ModelToSave model = Bare(1);
  model.printer = std::u16string{u'a', 0xD83D, u'b'};
  EXPECT_EQ(ModelDocument::Parse(Saved("", model)).Find(1)->Attribute(u"Printer"), u"a\uFFFDb");
}

TEST(ADocumentWithoutARootElement, CanNeitherBeChangedNorWritten) {
  for (const char* text :
       {"no es XML", "<Modelos>", "<?xml version='1.0'?><Modelos/>", "<!-- c --><Modelos/>"}) {
    ModelDocument document = ModelDocument::Parse(text);
    try {
      document.Replace(Bare(1), Locale::Spanish());
      ADD_FAILURE() << text;
    } catch (const runtime::RuntimeError& error) {
      EXPECT_EQ(error.number(), 91);
    }
    EXPECT_THROW((void)document.Serialize(), runtime::RuntimeError) << text;
  }
}

}  // namespace
}  // namespace qm::model
