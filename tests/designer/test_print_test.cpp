#include "designer/test_print.h"

#include <gtest/gtest.h>

#include "designer/model_store.h"
#include "tests/designer/layouts.h"
#include "tests/print/printing_world.h"

namespace qm::designer {
namespace {

struct TestPrint : testing::Test, print::PrintingWorld {
  Layout layout;

  TestPrint() {
    layout.canvasWidth = 11340;
    layout.canvasHeight = 5670;
    layout.printer = u"Impresora Recibos";
  }
  void Add(const Field& field) { layout.men.push_back(std::make_shared<const Field>(field)); }
  const std::string& Printed() {
    PrintTest(layout, environment);
    return log;
  }
};

TEST_F(TestPrint, PutsEachFieldsDescriptionAtItsLeftAndTopInTheirOrder) {
  layout.men = {nullptr, tests::FieldWith({567, 1134.5F, 2000, 300}, u"TOTAL"), nullptr,
                tests::FieldWith({0, 0, 100, 300}, u"#Nota larga")};
  EXPECT_EQ(Printed(),
            "open Impresora Recibos\npage 11340x5670\n0,0  \n567,1134.5 TOTAL\n0,0 #Nota larga\nend\n");
}

TEST_F(TestPrint, ShowsEveryPropertyOfAFieldsFontAndItsColour) {
  Field field;
  field.caption = u"A";
  field.font = {u"Courier New", 8.25F, true, true, true, true, 255};
  Add(field);
  EXPECT_EQ(Printed(),
            "open Impresora Recibos\npage 11340x5670\n0,0  \n"
            "font Courier New 8.25 bold italic underline strikethru\ncolor 255\n0,0 A\nend\n");
}

TEST_F(TestPrint, OfARightAlignedFieldStartsAtItsLeftToo) {
  Field field;
  field.caption = u"A";
  field.box = {100, 200, 3000, 300};
  field.alignment = 1;
  field.tag = u"3";
  Add(field);
  EXPECT_EQ(Printed(), "open Impresora Recibos\npage 11340x5670\n0,0  \n100,200 A\nend\n");
}

TEST_F(TestPrint, ScalesTheBackgroundToThePageAndTheLogoToItsBox) {
  layout.background = std::make_shared<const fakes::FakePicture>(100, 100);
  Logo logo;
  logo.picture = std::make_shared<const fakes::FakePicture>(10, 10);
  logo.box = {300, 600, 1500, 750};
  layout.logo = std::make_shared<const Logo>(logo);
  Add(Field{.caption = u"A", .box = {}, .font = {}, .alignment = 0, .tag = u""});
  EXPECT_EQ(
      Printed(),
      "open Impresora Recibos\npage 11340x5670\n0,0  \nscale 100x100 to 756x378\npicture 756x378 px 0,0\n"
      "scale 10x10 to 100x50\npicture 100x50 px 300,600\n0,0 A\nend\n");
}

TEST_F(TestPrint, DoesWithoutPicturesThatCouldNotBeLoaded) {
  layout.imagen = u"fondo.bmp";
  layout.logo = tests::LogoAt({300, 600, 1500, 750});
  EXPECT_EQ(Printed(), "open Impresora Recibos\npage 11340x5670\n0,0  \nend\n");
}

TEST_F(TestPrint, OnAPrinterThatIsNotInstalledGoesToTheDefaultOne) {
  layout.printer = u"Otra";
  EXPECT_EQ(Printed(), "open Impresora A4\npage 11340x5670\n0,0  \nend\n");
}

TEST_F(TestPrint, TakesAPaperFormOfThePagesSizeWhereTheSpoolerHasForms) {
  spooler.supportsForms = true;
  spooler.AddPrinter(u"Impresora Recibos", {u"A4"});
  EXPECT_EQ(Printed(), "open Impresora Recibos\npaper code=2 \"PS\" 11340x5680\n0,0  \nend\n");
}

TEST_F(TestPrint, FailsWithThePrinterAndThrowsThePageAway) {
  printers.faults.text = 2;
  Add(Field{.caption = u"A", .box = {}, .font = {}, .alignment = 0, .tag = u""});
  EXPECT_EQ(tests::ErrorOf([&] { PrintTest(layout, environment); }), 482);
  EXPECT_TRUE(log.ends_with("abandoned\n")) << log;
}

}  // namespace
}  // namespace qm::designer
