#include "designer/win32/modal.h"

namespace qm::designer::win32 {

void RunModal(ModalWindow& window) {
  while (!window.Closed()) {
    MSG message{};
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      // Messages that are sent are dealt with in between and never come out of the queue: one may have closed
      // the window, and each has to end the waiting.
      if (!window.Closed() && !window.Idle())
        MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
      continue;
    }
    if (message.message == WM_QUIT) {
      window.ProgramEnds();
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (window.Translate(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace qm::designer::win32
