#pragma once
// Hosts that are killed again and again while they write a file, which is judged each time: it must always be
// whole. A host is the program itself, started with other arguments.

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/win32/wide.h"

namespace qm::tests {

// Deletes what killed hosts left beside the file, and counts it.
inline int SweepBeside(const std::u16string& path) {
  using platform::win32::Text;
  using platform::win32::Wide;
  int count = 0;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(Wide(path + u".*.tmp"), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  const std::u16string folder = path.substr(0, path.rfind(u'\\') + 1);
  do {
    if (DeleteFileW(Wide(folder + Text(found.cFileName)))) ++count;
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return count;
}

// Starts a host, lets it write for some milliseconds, kills it. False, with the reason printed, when it did
// not start or ended by itself.
inline bool KillHost(const std::u16string& arguments, DWORD milliseconds) {
  using platform::win32::WideBuffer;
  std::u16string self(MAX_PATH * 2, u'\0');
  self.resize(GetModuleFileNameW(nullptr, WideBuffer(self), MAX_PATH * 2));
  std::u16string command = u"\"" + self + u"\" " + arguments;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION host{};
  if (!CreateProcessW(nullptr, WideBuffer(command), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &host)) {
    std::printf("a host did not start: %lu\n", GetLastError());
    return false;
  }
  const bool alive = WaitForSingleObject(host.hProcess, milliseconds) == WAIT_TIMEOUT;
  DWORD code = 0;
  if (!alive && GetExitCodeProcess(host.hProcess, &code)) std::printf("a host ended with %#lx\n", code);
  TerminateProcess(host.hProcess, 99);
  WaitForSingleObject(host.hProcess, INFINITE);
  CloseHandle(host.hThread);
  CloseHandle(host.hProcess);
  return alive;
}

// Kills so many hosts, each after 60 milliseconds and up to the spread more. flawOf(): what is wrong with the
// file, or null. Gives the program's exit code and prints how often a host died in the middle of a swap, as a
// file left beside shows; without any the run has proved nothing.
template <class FlawOf>
int KillHosts(int count, const std::u16string& path, const std::u16string& arguments, int spread,
              FlawOf&& flawOf) {
  int inTheMiddle = 0;
  std::srand(GetTickCount());
  for (int i = 0; i < count; ++i) {
    if (!KillHost(arguments, static_cast<DWORD>(60 + std::rand() % spread))) {
      std::printf("host %d ended by itself\n", i + 1);
      return 1;
    }
    if (const char* flaw = flawOf()) {
      std::printf("after kill %d: %s\n", i + 1, flaw);
      return 1;
    }
    if (SweepBeside(path) > 0) ++inTheMiddle;
  }
  std::printf("%d kills, %d of them in the middle of a swap: the file was always whole\n", count,
              inTheMiddle);
  return inTheMiddle > 0 ? 0 : 1;
}

}  // namespace qm::tests
