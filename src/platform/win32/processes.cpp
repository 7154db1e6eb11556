#include "platform/win32/processes.h"

#include "platform/win32/errors.h"
#include "platform/win32/handles.h"
#include "platform/win32/other_windows.h"

namespace qm::platform::win32 {
namespace {

using runtime::ErrorNumber;

struct ProcessRule : NullHandle<HANDLE> {
  static void Close(HANDLE process) { CloseHandle(process); }
};
using OwnedProcess = Owned<ProcessRule>;

[[noreturn]] void ThrowStartError(DWORD error) {
  const bool missing =
      error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME;
  Throw(missing ? ErrorNumber::FileNotFound : ErrorNumber::InvalidArgument);
}

OwnedProcess Start(std::u16string_view program, std::u16string_view arguments, WORD show) {
  // Nothing of the program's name may pass for an argument.
  if (program.find_first_of(std::u16string_view(u"\"\0", 2)) != std::u16string_view::npos)
    Throw(ErrorNumber::FileNotFound);
  const std::u16string name(program);
  std::u16string commandLine = u"\"" + name + u"\" " + std::u16string(arguments);
  const bool hasFolder = program.find_first_of(u"\\/:") != std::u16string_view::npos;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = show;
  PROCESS_INFORMATION started{};
  if (!CreateProcessW(hasFolder ? Wide(name) : nullptr, WideBuffer(commandLine), nullptr, nullptr, FALSE, 0,
                      nullptr, nullptr, &startup, &started)) {
    ThrowStartError(GetLastError());
  }
  CloseHandle(started.hThread);
  AllowSetForegroundWindow(started.dwProcessId);
  return OwnedProcess(started.hProcess);
}

// Keys would still reach the window with the focus, although it takes no input.
bool IsKey(const MSG& message) { return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST; }

// False when the thread is asked to quit.
bool PassMessagesOn() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));  // for the loop that waits for it
      return false;
    }
    if (!IsKey(message)) DispatchMessageW(&message);
  }
  return true;
}

}  // namespace

void Win32Processes::StartHidden(std::u16string_view program, std::u16string_view arguments) {
  static_cast<void>(Start(program, arguments, SW_HIDE));
}

void Win32Processes::RunAndWait(std::u16string_view program, std::u16string_view arguments) {
  const OwnedProcess process = Start(program, arguments, SW_SHOWNORMAL);
  const ActiveAgain active;
  const OtherWindows others(nullptr);
  HANDLE ended = process.Get();
  while (MsgWaitForMultipleObjectsEx(1, &ended, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE) ==
         WAIT_OBJECT_0 + 1) {
    if (!PassMessagesOn()) return;
  }
}

}  // namespace qm::platform::win32
