// A print that the user abandons, at the window that asks for another printer.

#include <windows.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <thread>

#include "tests/api/component.h"

namespace qm::tests {
namespace {

// Cancels the first dialog that the given thread shows.
class UserWhoCancels {
 public:
  UserWhoCancels() : host_(GetCurrentThreadId()), thread_([this] { Watch(); }) {}
  ~UserWhoCancels() {
    stop_ = true;
    thread_.join();
  }
  [[nodiscard]] bool Cancelled() const { return cancelled_; }

 private:
  static BOOL CALLBACK Cancel(HWND window, LPARAM self) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    reinterpret_cast<UserWhoCancels*>(self)->cancelled_ = true;
    PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    return FALSE;
  }
  void Watch() {
    while (!stop_ && !cancelled_) {
      EnumThreadWindows(host_, Cancel, reinterpret_cast<LPARAM>(this));
      Sleep(5);
    }
  }

  DWORD host_;
  std::atomic<bool> stop_ = false;
  std::atomic<bool> cancelled_ = false;
  std::thread thread_;
};

constexpr char kModels[] =
    "<Modelos><Modelo Numero=\"1\" Width=\"11906\" Height=\"16838\" Copias=\"1\" EsEtiqueta=\"0\" "
    "Printer=\"No existe\"/>"
    "<Modelo Numero=\"2\" Width=\"11906\" Height=\"16838\" Copias=\"1\" EsEtiqueta=\"0\">"
    "<Campo Key=\"1\"><Descripcion>#Texto</Descripcion><Top>600</Top><Left>600</Left><Width>3000</Width>"
    "<Height>300</Height></Campo></Modelo></Modelos>";

TEST(AbandonedPrint, StaysMarkedAfterALaterPrintThatSucceeds) {
  wchar_t folder[MAX_PATH], file[MAX_PATH];
  GetTempPathW(MAX_PATH, folder);
  GetTempFileNameW(folder, L"mod", 0, file);
  std::FILE* models = _wfopen(file, L"wb");
  std::fputs(kModels, models);
  std::fclose(models);

  const Component component;
  const auto form = component.NewPrintForm();
  VARIANT_BOOL abandoned = VARIANT_TRUE;
  EXPECT_EQ(form->put_XMLFileName(Bstr(file).Get()), S_OK);
  EXPECT_EQ(form->put_NumeroModelo(Value(1L)), S_OK);
  {
    const UserWhoCancels user;
    EXPECT_EQ(form->ImprimirModelo(), S_OK);
    EXPECT_TRUE(user.Cancelled());
  }
  EXPECT_EQ(form->get_ImpresionAnulada(&abandoned), S_OK);
  EXPECT_EQ(abandoned, VARIANT_TRUE);

  EXPECT_EQ(form->put_NumeroModelo(Value(2L)), S_OK);
  EXPECT_EQ(form->ImprimirModelo(), S_OK);
  EXPECT_EQ(form->get_ImpresionAnulada(&abandoned), S_OK);
  EXPECT_EQ(abandoned, VARIANT_TRUE);

  EXPECT_EQ(form->put_ImpresionAnulada(VARIANT_FALSE), S_OK);
  EXPECT_EQ(form->ImprimirModelo(), S_OK);
  EXPECT_EQ(form->get_ImpresionAnulada(&abandoned), S_OK);
  EXPECT_EQ(abandoned, VARIANT_FALSE);
  DeleteFileW(file);
}

}  // namespace
}  // namespace qm::tests
