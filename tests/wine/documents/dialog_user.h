#pragma once
// The person before the host's screen: a thread that answers the host thread's dialogs as they come, each
// with the next of the answers it was told. A dialog that nobody foresaw, or one that stays, ends the program
// with code 3 and says what it was.

#include <atomic>
#include <cstdio>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

#include "runtime/code_page.h"
#include "tests/platform/win32/window_driver.h"

namespace hosts {

using Dialogs = qm::platform::win32::WindowDriver;

class DialogUser {
 public:
  struct Answer {
    std::u16string title;
    std::u16string text;               // what the dialog must say
    std::function<void(HWND)> action;  // what ends the dialog is posted
  };

  DialogUser() : host_(GetCurrentThreadId()), thread_([this] { Watch(); }) {}
  DialogUser(const DialogUser&) = delete;
  DialogUser& operator=(const DialogUser&) = delete;
  ~DialogUser() {
    stop_ = true;
    thread_.join();
  }

  void Foresee(Answer answer) {
    const std::lock_guard lock(mutex_);
    answers_.push_back(std::move(answer));
  }

  // Every foreseen dialog has come.
  [[nodiscard]] bool Done() {
    const std::lock_guard lock(mutex_);
    return answers_.empty();
  }

 private:
  static constexpr DWORD kPollMilliseconds = 5;
  static constexpr int kMostPolls = 2000;

  void Watch() {
    HWND answered = nullptr;
    int polls = 0;
    for (; !stop_; Sleep(kPollMilliseconds)) {
      const HWND dialog = qm::platform::win32::VisibleWindow(host_, qm::platform::win32::kDialogClass);
      if (!dialog) continue;
      if (dialog != answered) {
        Take(dialog);
        answered = dialog;
        polls = 0;
      } else if (++polls == kMostPolls) {
        GiveUp("a dialog stays open", dialog);
      }
    }
  }

  void Take(HWND dialog) {
    Answer answer;
    {
      const std::lock_guard lock(mutex_);
      if (answers_.empty()) GiveUp("a dialog that nobody foresaw", dialog);
      answer = std::move(answers_.front());
      answers_.pop_front();
    }
    if (answer.title != Dialogs::TextOf(dialog) || answer.text != Said(dialog))
      GiveUp("another dialog than foreseen", dialog);
    answer.action(dialog);
  }

  // The first static text; that of a message box comes after its icon and has this number.
  static std::u16string Said(HWND dialog) {
    constexpr int kMessageText = 0xFFFF;
    const std::u16string first = Dialogs::TextOf(Dialogs::ChildOf(dialog, u"Static"));
    const HWND message = GetDlgItem(dialog, kMessageText);
    return first.empty() && message ? Dialogs::TextOf(message) : first;
  }

  [[noreturn]] static void GiveUp(const char* what, HWND dialog) {
    std::printf("%s: <%s> <%s>\n", what, qm::runtime::ToUtf8(Dialogs::TextOf(dialog)).c_str(),
                qm::runtime::ToUtf8(Said(dialog)).c_str());
    std::fflush(stdout);
    ExitProcess(3);
  }

  DWORD host_;
  std::mutex mutex_;
  std::deque<Answer> answers_;
  std::atomic<bool> stop_ = false;
  std::thread thread_;
};

// What users do with the component's dialogs.
inline void Type(HWND dialog, const std::u16string& text) {
  SendMessageW(Dialogs::ChildOf(dialog, u"Edit"), WM_SETTEXT, 0,
               reinterpret_cast<LPARAM>(qm::platform::win32::Wide(text)));
}
inline void Press(HWND dialog, const char16_t* control, WPARAM key) {
  Dialogs::Press(Dialogs::ChildOf(dialog, control), key);
}
inline std::u16string Offered(HWND dialog) { return Dialogs::TextOf(Dialogs::ChildOf(dialog, u"Edit")); }

}  // namespace hosts
