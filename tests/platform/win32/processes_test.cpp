#include "platform/win32/processes.h"

#include "platform/win32/folders.h"
#include "tests/platform/win32/expect_error.h"
#include "tests/platform/win32/scratch_folder.h"
#include "tests/platform/win32/wait_until.h"

namespace qm::platform::win32 {
namespace {

constexpr DWORD kPatience = 10000;  // milliseconds

// A program of its own folder that writes down how it was started; see tests/wine/mail/sender.cpp.
struct OtherPrograms : testing::Test {
  ScratchFolder scratch;
  Win32Processes processes;
  Win32Files files;
  std::u16string program = scratch.File(u"mi programa y eñe.exe");

  OtherPrograms() {
    const std::u16string built = Win32Folders().ComponentFolder() + u"\\sender.exe";
    EXPECT_TRUE(CopyFileW(Wide(built), Wide(program), FALSE));
  }
  // A program that still runs cannot be removed.
  ~OtherPrograms() override {
    EXPECT_TRUE(WaitUntil([&] { return DeleteFileW(Wide(program)) != FALSE; }));
  }
  OtherPrograms(const OtherPrograms&) = delete;
  OtherPrograms& operator=(const OtherPrograms&) = delete;

  std::optional<std::string> Log() { return files.Read(scratch.File(u"mi programa y eñe.log")); }
  std::string LogWhenWritten() {
    for (const ULONGLONG start = GetTickCount64(); GetTickCount64() - start < kPatience; Sleep(5)) {
      if (const auto log = Log(); log && log->ends_with('\n')) return *log;
    }
    return "(nothing)";
  }
};

TEST_F(OtherPrograms, GetTheirArgumentsBehindTheirQuotedName) {
  processes.StartHidden(program, u"\"C:\\Mi correo\\\" b");
  EXPECT_THAT(LogWhenWritten(), testing::HasSubstr("y e\xC3\xB1"
                                                   "e.exe\" \"C:\\Mi correo\\\" b|0|"));
}

TEST_F(OtherPrograms, ThatAreStartedHiddenAreNotWaitedFor) {
  const ULONGLONG start = GetTickCount64();
  processes.StartHidden(program, u"espera");
  EXPECT_LT(GetTickCount64() - start, 600u);
  EXPECT_EQ(Log(), std::nullopt);
  EXPECT_NE(LogWhenWritten(), "(nothing)");
}

TEST_F(OtherPrograms, ThatAreRunHaveEndedAfterwardsAndShowTheirWindow) {
  processes.RunAndWait(program, u"espera");
  EXPECT_THAT(Log().value_or(""), testing::HasSubstr("\" espera|1|"));
}

TEST_F(OtherPrograms, ThatDoNotExistAreNotFound) {
  EXPECT_RUNTIME_ERROR(53, processes.StartHidden(scratch.File(u"nada.exe"), u""));
  EXPECT_RUNTIME_ERROR(53, processes.StartHidden(scratch.File(u"nada\\nada.exe"), u""));
  EXPECT_RUNTIME_ERROR(53, processes.RunAndWait(u"no-hay-tal-programa.exe", u""));
}

TEST_F(OtherPrograms, ThatAreNoneCannotBeStarted) {
  files.Replace(scratch.File(u"texto.exe"), "esto no es un programa");
  EXPECT_RUNTIME_ERROR(5, processes.StartHidden(scratch.File(u"texto.exe"), u""));
}

TEST_F(OtherPrograms, AreNotFoundByAnUnquotedBeginningOfTheirPath) {
  EXPECT_TRUE(CopyFileW(Wide(program), Wide(scratch.File(u"mi.exe")), FALSE));
  EXPECT_RUNTIME_ERROR(53, processes.StartHidden(scratch.File(u"mi otro.exe"), u""));
}

TEST_F(OtherPrograms, CannotHaveAQuoteInTheirName) {
  EXPECT_RUNTIME_ERROR(53, processes.StartHidden(u"C:\\a\" b.exe", u""));
}

TEST_F(OtherPrograms, AreFoundByABareNameInTheOrderOfTheSystem) {
  processes.RunAndWait(u"cmd.exe", u"/c exit 0");
}

// A window of the thread that counts its paintings, and a timer that asks for them.
struct PaintingWindow {
  int paintings = 0;
  bool enabledMeanwhile = true;
  HWND window;

  PaintingWindow() {
    WNDCLASSW type{};
    type.lpfnWndProc = Procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = L"QmPaintingWindow";
    RegisterClassW(&type);
    window = CreateWindowW(type.lpszClassName, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr,
                           nullptr, type.hInstance, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetTimer(window, 1, 20, nullptr);
  }
  ~PaintingWindow() { DestroyWindow(window); }

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter) noexcept {
    auto* const self = reinterpret_cast<PaintingWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self && message == WM_TIMER) {
      self->enabledMeanwhile = IsWindowEnabled(window) != FALSE;
      ++self->paintings;  // as a painting would, it comes only where messages are passed on
    }
    return DefWindowProcW(window, message, wide, parameter);
  }
};

TEST_F(OtherPrograms, ThatAreRunLeaveTheThreadsWindowsPaintingButWithoutInput) {
  PaintingWindow painting;
  processes.RunAndWait(program, u"espera");
  EXPECT_GT(painting.paintings, 3);
  EXPECT_FALSE(painting.enabledMeanwhile);
  EXPECT_TRUE(IsWindowEnabled(painting.window));
}

TEST_F(OtherPrograms, ThatAreRunAreNotWaitedForWhenTheThreadIsAskedToQuit) {
  PostQuitMessage(7);
  const ULONGLONG start = GetTickCount64();
  processes.RunAndWait(program, u"espera");
  EXPECT_LT(GetTickCount64() - start, 600u);
  MSG message{};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7u);
  EXPECT_NE(LogWhenWritten(), "(nothing)");
}

}  // namespace
}  // namespace qm::platform::win32
