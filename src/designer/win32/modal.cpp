#include "designer/win32/modal.h"

namespace qm::designer::win32 {

void RunModal(ModalWindow& window) {
  while (!window.Closed()) {
    MSG message{};
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (!window.Idle()) WaitMessage();
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
