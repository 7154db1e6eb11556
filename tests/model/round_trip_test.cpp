#include <gtest/gtest.h>

#include "model/document.h"
#include "print/text/text_helpers.h"
#include "runtime/format.h"
#include "tests/model/sample_models.h"

namespace qm::model {
namespace {

using runtime::Locale;

float RandomTwips(std::mt19937& random) {
  return static_cast<float>(static_cast<int>(random() % 80000) - 1000) / 4;
}

FieldToSave RandomField(std::mt19937& random, int key) {
  return {.key = key,
          .descripcion = RandomText(random, 40),
          .top = RandomTwips(random),
          .left = RandomTwips(random),
          .width = RandomTwips(random),
          .height = RandomTwips(random),
          .foreColor = static_cast<std::int32_t>(random()),
          .bold = random() % 2 == 0,
          .fontSize = static_cast<float>(random() % 400) / 4,
          .fontItalic = random() % 2 == 0,
          .alignment = static_cast<int>(random() % 3),
          .underline = random() % 2 == 0,
          .fontName = RandomText(random, 12)};
}

ModelToSave RandomModel(std::mt19937& random, std::int32_t numero) {
  ModelToSave model{.numero = numero,
                    .width = RandomTwips(random),
                    .height = RandomTwips(random),
                    .copias = RandomText(random, 3),
                    .printer = RandomText(random, 30),
                    .esEtiqueta = random() % 2 == 0,
                    .imagen = RandomText(random, 10),
                    .imagenLogo = {},
                    .fields = {}};
  if (random() % 2) model.imagenLogo = LogoBox{RandomText(random, 20), RandomTwips(random), 1, 2, 3};
  for (int key = 1; random() % 6; ++key) model.fields.push_back(RandomField(random, key));
  return model;
}

void ExpectReadsAs(const ModelTexts& read, const ModelToSave& saved, const Locale& locale) {
  EXPECT_EQ(read.Attribute(u"Numero"), runtime::ToText(saved.numero));
  EXPECT_EQ(text::ParseNumber(read.Attribute(u"Width"), locale), saved.width);
  EXPECT_EQ(text::ParseNumber(read.Attribute(u"Height"), locale), saved.height);
  EXPECT_EQ(read.Attribute(u"Copias"), saved.copias);
  EXPECT_EQ(read.Attribute(u"Printer"), saved.printer);
  EXPECT_EQ(read.Attribute(u"EsEtiqueta"), saved.esEtiqueta ? u"1" : u"0");
  EXPECT_EQ(read.Attribute(u"Logo"), read.Attribute(u"EsEtiqueta"));
  EXPECT_EQ(read.Attribute(u"Imagen"), saved.imagen);
  EXPECT_EQ(read.Attribute(u"ImagenLogo").substr(0, saved.imagenLogo ? saved.imagenLogo->path.size() : 0),
            saved.imagenLogo ? saved.imagenLogo->path : u"");
  ASSERT_EQ(read.fields.size(), saved.fields.size());
  for (std::size_t i = 0; i < saved.fields.size(); ++i) {
    const FieldToSave& field = saved.fields[i];
    const std::vector<FieldText>& texts = read.fields[i];
    ASSERT_EQ(texts.size(), 12U);
    EXPECT_EQ(texts[0].text, field.descripcion);
    EXPECT_EQ(text::ParseNumber(texts[1].text, locale), field.top);
    EXPECT_EQ(text::ParseNumber(texts[2].text, locale), field.left);
    EXPECT_EQ(text::ParseNumber(texts[3].text, locale), field.width);
    EXPECT_EQ(text::ParseNumber(texts[4].text, locale), field.height);
    EXPECT_EQ(texts[5].text, runtime::ToText(field.foreColor));
    EXPECT_EQ(text::ParseBoolean(texts[6].text, locale), field.bold);
    EXPECT_EQ(text::ParseNumber(texts[7].text, locale), field.fontSize);
    EXPECT_EQ(text::ParseBoolean(texts[8].text, locale), field.fontItalic);
    EXPECT_EQ(texts[9].text, runtime::ToText(field.alignment));
    EXPECT_EQ(text::ParseBoolean(texts[10].text, locale), field.underline);
    EXPECT_EQ(texts[11].text, field.fontName);
  }
}

TEST(ModelsWithAnyTexts, ReadBackAsTheyWereSaved) {
  std::mt19937 random(2015);
  for (int round = 0; round < 300; ++round) {
    const Locale locale = round % 2 ? Locale::Spanish() : Locale::English();
    std::string file;
    std::vector<ModelToSave> models;
    for (int numero = 1; numero <= 4; ++numero) {
      models.push_back(RandomModel(random, numero));
      ModelDocument document = ModelDocument::Parse(file);
      document.Replace(models.back(), locale);
      file = document.Serialize();
    }
    const ModelDocument document = ModelDocument::Parse(file);
    for (const ModelToSave& model : models) {
      const auto read = document.Find(model.numero);
      ASSERT_TRUE(read);
      ExpectReadsAs(*read, model, locale);
    }
    ASSERT_EQ(document.Serialize(), file);
    ASSERT_FALSE(HasFailure()) << file;
  }
}

}  // namespace
}  // namespace qm::model
