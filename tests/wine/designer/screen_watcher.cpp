// screen_watcher: says what stands on the screen, for tests that act with real mouse and keyboard and have to
// know where things are and when they have come. For every line of its input it prints one line: a JSON
// object of the windows in sight, topmost first, with their controls, the menu state and who has the focus.
// Ends with its input. Units: pixels of the screen.

#include <windows.h>

#include <cstdio>
#include <string>

namespace {

constexpr UINT kAnswerWithinMilliseconds = 2000;

std::string Utf8(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size() * 3, '\0');
  const int used = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                       static_cast<int>(bytes.size()), nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(used));
  return bytes;
}

std::string Quoted(const std::wstring& text) {
  std::wstring safe;
  for (const wchar_t letter : text) {
    if (letter == L'"' || letter == L'\\') safe += L'\\';
    safe += letter < L' ' ? L' ' : letter;
  }
  return '"' + Utf8(safe) + '"';
}

std::string Member(const char* name, const std::string& value) {
  return '"' + std::string(name) + "\":" + value;
}
std::string Member(const char* name, long long value) { return Member(name, std::to_string(value)); }
std::string Handle(HWND window) { return std::to_string(reinterpret_cast<UINT_PTR>(window)); }

DWORD_PTR Ask(HWND window, UINT message, WPARAM wide = 0, LPARAM parameter = 0) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, wide, parameter, SMTO_NORMAL, kAnswerWithinMilliseconds, &answer);
  return answer;
}

std::wstring ClassOf(HWND window) {
  wchar_t name[80];
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, 80))};
}

// A control's text is its own; only asking it brings that of another program's.
std::wstring TextOf(HWND window) {
  wchar_t text[1000] = L"";
  const DWORD_PTR length = Ask(window, WM_GETTEXT, 1000, reinterpret_cast<LPARAM>(text));
  return {text, length < 1000 ? length : 0};
}

// What is ticked or chosen in it.
long long StateOf(HWND window, const std::wstring& className) {
  if (className == L"Button") return static_cast<long long>(Ask(window, BM_GETCHECK));
  if (className == L"ComboBox") return static_cast<int>(Ask(window, CB_GETCURSEL));
  if (className == L"ListBox" || className == L"ComboLBox")
    return static_cast<int>(Ask(window, LB_GETCURSEL));
  return 0;
}

std::string Described(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  const std::wstring className = ClassOf(window);
  return Member("handle", Handle(window)) + ',' + Member("class", Quoted(className)) + ',' +
         Member("text", Quoted(TextOf(window))) + ',' + Member("state", StateOf(window, className)) + ',' +
         Member("enabled", IsWindowEnabled(window)) + ',' + Member("left", place.left) + ',' +
         Member("top", place.top) + ',' + Member("right", place.right) + ',' + Member("bottom", place.bottom);
}

BOOL CALLBACK AddControl(HWND window, LPARAM parameter) {
  auto& list = *reinterpret_cast<std::string*>(parameter);
  if (!IsWindowVisible(window)) return TRUE;
  if (!list.empty()) list += ',';
  list += '{' + Member("id", GetDlgCtrlID(window)) + ',' + Described(window) + '}';
  return TRUE;
}

BOOL CALLBACK AddWindow(HWND window, LPARAM parameter) {
  auto& list = *reinterpret_cast<std::string*>(parameter);
  if (!IsWindowVisible(window)) return TRUE;
  std::string controls;
  EnumChildWindows(window, AddControl, reinterpret_cast<LPARAM>(&controls));
  if (!list.empty()) list += ',';
  list += '{' + Described(window) + ',' + Member("controls", '[' + controls + ']') + '}';
  return TRUE;
}

std::string Look() {
  std::string windows;
  EnumWindows(AddWindow, reinterpret_cast<LPARAM>(&windows));
  GUITHREADINFO front{};
  front.cbSize = sizeof front;
  GetGUIThreadInfo(GetWindowThreadProcessId(GetForegroundWindow(), nullptr), &front);
  return '{' + Member("focus", Handle(front.hwndFocus)) + ',' +
         Member("in_menu", (front.flags & GUI_INMENUMODE) != 0) + ',' +
         Member("windows", '[' + windows + ']') + '}';
}

}  // namespace

int wmain() {
  for (int letter = 0; (letter = std::getchar()) != EOF;) {
    if (letter != '\n') continue;
    std::puts(Look().c_str());
    std::fflush(stdout);
  }
  return 0;
}
