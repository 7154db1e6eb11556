// The designer as hosts open it.

#include <gmock/gmock.h>

#include <atomic>
#include <functional>
#include <thread>

#include "tests/api/component.h"
#include "tests/data/definition_bytes.h"
#include "tests/platform/win32/scratch_folder.h"
#include "tests/platform/win32/thread_windows.h"

namespace qm::tests {
namespace {

using ::testing::ElementsAre;

constexpr wchar_t kDesignerClass[] = L"ModeloPrint";
constexpr wchar_t kDesignerTitle[] = L"Modelos de Impresión";

// Waits for this thread's designer, looks at it and closes it.
class Visitor {
 public:
  explicit Visitor(std::function<void(HWND)> look = [](HWND) {})
      : thread_([host = GetCurrentThreadId(), look = std::move(look)] {
          const HWND designer = platform::win32::WaitForWindow(host, kDesignerClass, kDesignerTitle);
          if (!designer) return;
          look(designer);
          PostMessageW(designer, WM_CLOSE, 0, 0);
        }) {}
  Visitor(const Visitor&) = delete;
  Visitor& operator=(const Visitor&) = delete;
  ~Visitor() { thread_.join(); }

 private:
  std::thread thread_;
};

std::vector<std::wstring> MenusOf(HWND designer) {
  std::vector<std::wstring> captions;
  const HMENU bar = GetMenu(designer);
  for (int i = 0; i < GetMenuItemCount(bar); ++i) {
    wchar_t caption[100] = L"";
    GetMenuStringW(bar, static_cast<UINT>(i), caption, 100, MF_BYPOSITION);
    captions.emplace_back(caption);
  }
  return captions;
}

class ShowingTheDesigner : public testing::Test {
 protected:
  ShowingTheDesigner() {
    platform::win32::Win32Files().Replace(folder_.File(u"CLIEN.Qma"),
                                          DefinitionBytes("2 ", "Clientes", {"NOMBRE", "NIF"}));
    EXPECT_EQ(form_->put_XMLFileName(Bstr(Path(u"modelos.xml")).Get()), S_OK);
  }
  std::wstring Path(std::u16string_view name) const {
    const std::u16string path = folder_.File(name);
    return {path.begin(), path.end()};
  }
  void AddTable(std::u16string_view name) {
    Bstr table(Path(name));
    ComPtr<_Tablas> record;
    EXPECT_EQ(form_->AñadirTabla(table.Ref(), &record), S_OK);
  }

  platform::win32::ScratchFolder folder_;
  Component component_;
  ComPtr<_PrintForm> form_ = component_.NewPrintForm();
};

TEST_F(ShowingTheDesigner, ReturnsWhenTheUserClosesIt) {
  HWND shown = nullptr;
  const Visitor visitor([&](HWND designer) { shown = designer; });
  EXPECT_EQ(form_->Show(), S_OK);
  EXPECT_FALSE(IsWindow(shown));
  EXPECT_FALSE(platform::win32::VisibleWindow(GetCurrentThreadId(), kDesignerClass));
}

TEST_F(ShowingTheDesigner, LeavesTheComponentReadyToBeUnloaded) {
  {
    const Visitor visitor;
    EXPECT_EQ(form_->Show(), S_OK);
  }
  form_.Reset();
  EXPECT_EQ(component_.CanUnloadNow(), S_OK);
}

TEST_F(ShowingTheDesigner, OffersWhatTheHostPouredInAndASecondShowTheNextMenu) {
  AddTable(u"CLIEN");
  std::vector<std::wstring> first;
  std::vector<std::wstring> second;
  std::wstring entry;
  {
    const Visitor visitor([&](HWND designer) {
      first = MenusOf(designer);
      wchar_t text[100] = L"";
      GetMenuStringW(GetSubMenu(GetMenu(designer), 3), 1, text, 100, MF_BYPOSITION);
      entry = text;
    });
    EXPECT_EQ(form_->Show(), S_OK);
  }
  Bstr name(L"Total");
  Value value(5L);
  ComPtr<_Campos> record;
  EXPECT_EQ(form_->AsignarCampo(name.Ref(), &value, &record), S_OK);
  {
    const Visitor visitor([&](HWND designer) { second = MenusOf(designer); });
    EXPECT_EQ(form_->Show(), S_OK);
  }
  const std::wstring table = L"Clientes               ";  // untrimmed, as the definition has it
  EXPECT_THAT(first, ElementsAre(L"&Archivo", L"&Editar", L"Insertar", table));
  EXPECT_EQ(entry, L"NIF (CLIEN)");
  EXPECT_THAT(second, ElementsAre(L"&Archivo", L"&Editar", L"Insertar", L"Campos disponibles", table));
}

TEST_F(ShowingTheDesigner, OfAnEleventhTableIsError340BeforeAnyWindow) {
  for (int i = 0; i < 11; ++i) AddTable(u"CLIEN");
  EXPECT_EQ(form_->Show(), RuntimeResult(340));
  EXPECT_EQ(TakeError().description, L"El elemento de la matriz de controles no existe");
}

TEST_F(ShowingTheDesigner, WithANumberThatIsNoModelsShowsTheFirst) {
  EXPECT_EQ(form_->put_NumeroModelo(Value(L"otro")), S_OK);
  LRESULT selected = -1;
  const Visitor visitor([&](HWND designer) {
    for (HWND list = nullptr; (list = FindWindowExW(designer, list, L"ComboBox", nullptr)) != nullptr;)
      if (SendMessageW(list, CB_GETCOUNT, 0, 0) == 9) selected = SendMessageW(list, CB_GETCURSEL, 0, 0);
  });
  EXPECT_EQ(form_->Show(), S_OK);
  EXPECT_EQ(selected, 0);
}

_PrintForm* shownAgain = nullptr;
std::atomic<HRESULT> resultOfShowingAgain = S_OK;

void CALLBACK ShowAgain(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  resultOfShowingAgain = shownAgain->Show();
}

TEST_F(ShowingTheDesigner, WhileItIsOpenIsError400) {
  shownAgain = form_.Get();
  const UINT_PTR timer = SetTimer(nullptr, 0, 10, ShowAgain);
  const Visitor visitor(
      [](HWND) { (void)platform::win32::WaitUntil([] { return resultOfShowingAgain != S_OK; }); });
  EXPECT_EQ(form_->Show(), S_OK);
  KillTimer(nullptr, timer);
  EXPECT_EQ(resultOfShowingAgain.load(), RuntimeResult(400));
}

}  // namespace
}  // namespace qm::tests
