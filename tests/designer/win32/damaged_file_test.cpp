// A model file that was cut off, opened by the designer at the screen: the question, and both answers.

#include <gmock/gmock.h>

#include "platform/win32/dialog.h"
#include "platform/win32/dialogs.h"
#include "tests/designer/win32/clerk.h"

namespace qm::designer::win32 {
namespace {

using ::testing::ElementsAre;

constexpr char kCutOff[] = "<Modelos><Modelo Num";

struct DamagedFileAtTheScreen : ::testing::Test, WindowWorld {
  platform::win32::Win32Dialogs windows;
  Environment screen{realPrinting, windows, folders, processes};
  const std::string good = ModelFile(Campo("NOMBRE", 300, 300, 1500, 300));
  std::vector<std::u16string> asked;
  std::u16string ancho;  // as the window shows it when all is answered

  DamagedFileAtTheScreen() {
    Keep(good);
    EXPECT_TRUE(Visit(*this, [](Clerk&) {}));  // leaves a copy
    Keep(kCutOff);
  }

  void Note(HWND box) {
    std::u16string text;
    for (HWND label = nullptr; (label = FindWindowExW(box, label, L"Static", nullptr)) != nullptr;)
      text += WindowDriver::TextOf(label);
    asked.push_back(text);
  }

  // The question comes before the window does.
  void OpenWhile(const std::function<void(HWND)>& answer) {
    WindowDriver user(std::u16string(platform::win32::kApplicationTitle), [&](HWND box) {
      Note(box);
      answer(box);
    });
    const Clerk clerk([&](Clerk& self) { ancho = self.TextOf(kAncho); });
    const NoOtherMouse silence;
    ShowModeloPrint(screen, menus, 1);
    EXPECT_TRUE(user.Acted());
  }

  [[nodiscard]] std::string Aside() const {
    const auto found = files.contents.find(std::u16string(kModels) + u".danado");
    return found == files.contents.end() ? std::string() : found->second;
  }
};

constexpr char16_t kQuestion[] =
    u"El archivo de modelos está dañado y no se puede leer. ¿Desea recuperar su última copia buena? "
    u"El archivo dañado se conservará a su lado, con la terminación .danado.";

TEST_F(DamagedFileAtTheScreen, IsReplacedByItsCopyAndShownWhenTheAnswerIsYes) {
  OpenWhile([](HWND box) { WindowDriver::Click(box, IDYES); });
  EXPECT_THAT(asked, ElementsAre(kQuestion));
  EXPECT_EQ(Kept(), good);
  EXPECT_EQ(Aside(), kCutOff);
  EXPECT_EQ(ancho, u"20");
}

TEST_F(DamagedFileAtTheScreen, StaysAsItIsAndIsToldWhenTheAnswerIsNo) {
  OpenWhile([&](HWND question) {
    const DWORD host = GetWindowThreadProcessId(question, nullptr);
    WindowDriver::Click(question, IDNO);
    const HWND told = WaitForWindow(host, kDialogClass, nullptr, question);
    EXPECT_TRUE(told);
    Note(told);
    PostMessageW(told, WM_CLOSE, 0, 0);
  });
  EXPECT_THAT(asked,
              ElementsAre(kQuestion, u"El archivo de modelos no se puede leer. No se grabará nada en él."));
  EXPECT_EQ(Kept(), kCutOff);
  EXPECT_EQ(Aside(), "");
}

}  // namespace
}  // namespace qm::designer::win32
