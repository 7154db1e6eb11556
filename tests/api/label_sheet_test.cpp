// A model that is a sheet of labels, printed through the automation object by a user who answers the options.

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "tests/api/component.h"
#include "tests/api/record_object.h"
#include "tests/platform/win32/window_driver.h"

namespace qm::tests {
namespace {

using platform::win32::WindowDriver;

constexpr char kModels[] =
    "<Modelos><Modelo Numero=\"1\" Width=\"5670\" Height=\"2100\" Copias=\"1\" EsEtiqueta=\"1\">"
    "<Campo Key=\"1\"><Descripcion>#Etiqueta</Descripcion><Top>600</Top><Left>600</Left><Width>3000</Width>"
    "<Height>300</Height></Campo></Modelo>"
    "<Modelo Numero=\"2\" Width=\"5670\" Height=\"2100\" Copias=\"1\" EsEtiqueta=\"1\" "
    "Printer=\"Impresora Averiada\"><Campo><Descripcion>CAMPO (CLIEN)</Descripcion><Width>3000</Width>"
    "<Height>300</Height></Campo></Modelo></Modelos>";

struct LabelModel : testing::Test {
  LabelModel() {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    GetTempFileNameW(folder, L"eti", 0, file);
    std::FILE* models = _wfopen(file, L"wb");
    std::fputs(kModels, models);
    std::fclose(models);
    EXPECT_EQ(form->put_XMLFileName(Bstr(file).Get()), S_OK);
    EXPECT_EQ(form->put_NumeroModelo(Value(1L)), S_OK);
  }
  ~LabelModel() override { DeleteFileW(file); }

  // Prints while the user presses that button of the label options.
  HRESULT PrintedWith(int button) {
    WindowDriver user(u"Opciones de Etiquetas", [=](HWND dialog) { WindowDriver::Click(dialog, button); });
    const HRESULT result = form->ImprimirModelo();
    EXPECT_TRUE(user.Acted());
    return result;
  }
  bool Abandoned() const {
    VARIANT_BOOL abandoned = VARIANT_FALSE;
    EXPECT_EQ(form->get_ImpresionAnulada(&abandoned), S_OK);
    return abandoned != VARIANT_FALSE;
  }

  wchar_t file[MAX_PATH] = L"";
  const Component component;
  const decltype(component.NewPrintForm()) form = component.NewPrintForm();
};

TEST_F(LabelModel, CancelledOptionsAbandonThePrint) {
  EXPECT_EQ(PrintedWith(IDCANCEL), S_OK);
  EXPECT_TRUE(Abandoned());
}

TEST_F(LabelModel, WithoutRowsThePrintIsCompleteAndPrintsNothing) {
  EXPECT_EQ(PrintedWith(IDOK), S_OK);
  EXPECT_FALSE(Abandoned());
}

// A printer that fails at the end of every job tells whether there was one.
TEST_F(LabelModel, TheRowsThatTheHostLoadedArePrinted) {
  EXPECT_EQ(form->put_NumeroModelo(Value(2L)), S_OK);
  EXPECT_EQ(PrintedWith(IDOK), S_OK) << "no rows, no job";

  RecordObject records;
  auto* const object = static_cast<IDispatch*>(&records);
  auto* rows = reinterpret_cast<_QmFileControl2*>(object);
  ASSERT_EQ(form->AsignarDatosTablaQmF2(&rows), S_OK);
  EXPECT_EQ(PrintedWith(IDOK), RuntimeResult(482));
  EXPECT_FALSE(Abandoned());
}

}  // namespace
}  // namespace qm::tests
