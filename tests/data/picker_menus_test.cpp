#include "data/picker_menus.h"

#include <gmock/gmock.h>

#include "data/fields.h"
#include "tests/data/definition_bytes.h"
#include "tests/error_of.h"
#include "tests/fakes/memory_files.h"

namespace qm::data {
namespace {

using ::testing::ElementsAre;
using tests::DefinitionBytes;
using tests::ErrorOf;

struct PickerMenusOfAJob : testing::Test {
  PrintJob job;
  fakes::MemoryFiles files;

  PickerMenusOfAJob() {
    files.contents[u"C:\\DATOS\\CLIEN.Qma"] = DefinitionBytes("03", "Clientes", {"NOMBRE", "NIF", "ALTA"});
    files.contents[u"C:\\DATOS\\VENTA.Qma"] = DefinitionBytes("01", "Ventas", {"TOTAL"});
  }
  void AddField(std::u16string_view campo) {
    job.fields.push_back(std::make_shared<Field>(Field{std::u16string(campo), u"valor"}));
  }
  void AddTable(std::u16string_view tabla) {
    job.tables.push_back(std::make_shared<Table>(Table{std::u16string(tabla)}));
  }
  PickerMenus Fill() { return FillPickerMenus(job, files); }
  static int Visible(const PickerMenus& menus) {
    int count = 0;
    for (const PickerMenu& menu : menus) count += menu.visible ? 1 : 0;
    return count;
  }
};

TEST_F(PickerMenusOfAJob, TwoFieldsAndATableOfThreeNamesFillTheFirstTwoMenus) {
  AddField(u"Cliente");
  AddField(u"Fecha");
  AddTable(u"C:\\DATOS\\CLIEN");
  const PickerMenus menus = Fill();
  EXPECT_EQ(menus[0].caption, u"Campos disponibles");
  EXPECT_THAT(menus[0].items, ElementsAre(u"Cliente", u"Fecha"));
  EXPECT_EQ(menus[1].caption, u"Clientes               ");
  EXPECT_THAT(menus[1].items, ElementsAre(u"NOMBRE (CLIEN)", u"NIF (CLIEN)", u"ALTA (CLIEN)"));
  EXPECT_TRUE(menus[0].visible && menus[1].visible);
  EXPECT_EQ(Visible(menus), 2);
}

TEST_F(PickerMenusOfAJob, WithoutFieldsTheFirstTableTakesTheFirstMenu) {
  AddTable(u"C:\\DATOS\\CLIEN");
  const PickerMenus menus = Fill();
  EXPECT_EQ(menus[0].caption, u"Clientes               ");
  EXPECT_THAT(menus[0].items, ElementsAre(u"NOMBRE (CLIEN)", u"NIF (CLIEN)", u"ALTA (CLIEN)"));
  EXPECT_EQ(Visible(menus), 1);
}

TEST_F(PickerMenusOfAJob, AnEmptyDefinitionShowsAnEmptyTitleWithoutEntriesAndTheNextTableMovesOneFurther) {
  files.contents[u"C:\\DATOS\\VACIA.Qma"] = "";
  AddTable(u"C:\\DATOS\\VACIA");
  AddTable(u"C:\\DATOS\\VENTA");
  const PickerMenus menus = Fill();
  EXPECT_TRUE(menus[0].visible);
  EXPECT_EQ(menus[0].caption, u"");
  EXPECT_THAT(menus[0].items, ElementsAre(u""));
  EXPECT_THAT(menus[1].items, ElementsAre(u"TOTAL (VENTA)"));
}

TEST_F(PickerMenusOfAJob, AMissingDefinitionIsMadeEmptyAndShowsAnEmptyMenu) {
  AddTable(u"C:\\DATOS\\FALTA");
  const PickerMenus menus = Fill();
  EXPECT_EQ(files.contents.at(u"C:\\DATOS\\FALTA.Qma"), "");
  EXPECT_TRUE(menus[0].visible);
  EXPECT_EQ(menus[0].caption, u"");
}

TEST_F(PickerMenusOfAJob, ADefinitionOfNoFieldsShowsItsTitle) {
  files.contents[u"C:\\DATOS\\VACIA.Qma"] = DefinitionBytes("00", "Vacía", {});
  AddTable(u"C:\\DATOS\\VACIA");
  EXPECT_EQ(Fill()[0].caption.substr(0, 2), u"Va");
}

TEST_F(PickerMenusOfAJob, ASecondShowPutsTheTableInTheNextMenu) {
  AddTable(u"C:\\DATOS\\CLIEN");
  EXPECT_TRUE(Fill()[0].visible);
  const PickerMenus second = Fill();
  EXPECT_FALSE(second[0].visible);
  EXPECT_EQ(second[1].caption, u"Clientes               ");
}

TEST_F(PickerMenusOfAJob, WithFieldsASecondShowLeavesAMenuFree) {
  AddField(u"Cliente");
  AddTable(u"C:\\DATOS\\CLIEN");
  EXPECT_TRUE(Fill()[1].visible);
  const PickerMenus second = Fill();
  EXPECT_TRUE(second[0].visible);
  EXPECT_FALSE(second[1].visible || second[2].visible);
  EXPECT_TRUE(second[3].visible);
}

TEST_F(PickerMenusOfAJob, WithNothingPouredInNoMenuShowsAndTheCounterStays) {
  EXPECT_EQ(Visible(Fill()), 0);
  EXPECT_EQ(job.menuCounter, 0);
}

TEST_F(PickerMenusOfAJob, FieldsOfOneNameAppearAsOftenAsTheyWereAdded) {
  AddField(u"Fecha");
  AddField(u"Fecha");
  EXPECT_THAT(Fill()[0].items, ElementsAre(u"Fecha", u"Fecha"));
}

TEST_F(PickerMenusOfAJob, TenTablesFillTheTenMenusAndAnEleventhIsError340) {
  for (int i = 0; i < 10; ++i) AddTable(u"C:\\DATOS\\VENTA");
  EXPECT_EQ(Visible(Fill()), 10);
  job.menuCounter = 0;
  AddTable(u"C:\\DATOS\\ULTIM");
  EXPECT_EQ(ErrorOf([&] { (void)Fill(); }), 340);
  EXPECT_EQ(job.menuCounter, 10);
  EXPECT_TRUE(files.contents.contains(u"C:\\DATOS\\ULTIM.Qma"));
}

TEST_F(PickerMenusOfAJob, OnceTheCounterIsPastTheMenusOnlyTheFieldsAreShown) {
  job.menuCounter = 10;
  AddField(u"Cliente");
  EXPECT_EQ(Visible(Fill()), 1);
  EXPECT_EQ(job.menuCounter, 11);
}

TEST_F(PickerMenusOfAJob, ADefinitionCutShortIsError62) {
  files.contents[u"C:\\DATOS\\CLIEN.Qma"].resize(90);
  AddTable(u"C:\\DATOS\\CLIEN");
  EXPECT_EQ(ErrorOf([&] { (void)Fill(); }), 62);
  EXPECT_EQ(job.menuCounter, 0);
}

}  // namespace
}  // namespace qm::data
