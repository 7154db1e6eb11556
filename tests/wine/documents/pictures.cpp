// pictures SCENE MODELS.xml NUMBER [FILE FIELD ...]: prints a model with pictures, which the host hands over
// as texts of one character a byte. Scenes:
//   good WIDTH HEIGHT    the last file's picture is afterwards on the clipboard, WIDTH by HEIGHT pixels,
//                        and its bytes in the folder of temporary files (two arguments before the files)
//   disturbed            like good, but somebody else uses the clipboard meanwhile
//   broken               the print fails with the error of an invalid picture
#include <cwchar>
#include <vector>

#include "tests/wine/documents/print_host.h"
#include "tests/wine/hosts/expectations.h"

namespace {

constexpr SHORT kPicture = 75;

std::string BytesOf(const std::wstring& path) {
  std::string bytes;
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return bytes;
  bytes.resize(GetFileSize(file, nullptr));
  DWORD read = 0;
  ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
  CloseHandle(file);
  return bytes;
}

// What a host of 8-bit texts does with a file's content.
std::wstring AsText(const std::string& bytes) {
  const int size = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');
  MultiByteToWideChar(1252, 0, bytes.data(), size, text.data(), size);
  return text;
}

void CheckClipboard(long width, long height, hosts::Expectations& expect) {
  expect.True("the clipboard opens", OpenClipboard(nullptr) != FALSE);
  BITMAP bitmap{};
  const HANDLE handle = GetClipboardData(CF_BITMAP);
  expect.True("a bitmap on the clipboard", GetObjectW(handle, sizeof bitmap, &bitmap) != 0);
  expect.True("its width", bitmap.bmWidth == width);
  expect.True("its height", bitmap.bmHeight == height);
  CloseClipboard();
}

std::wstring ScratchPicture() {
  wchar_t folder[MAX_PATH] = L"";
  GetTempPathW(MAX_PATH, folder);
  return std::wstring(folder) + L"fotosocio.jpg";
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count < 4) return 2;
  const bool good = std::wcscmp(arguments[1], L"good") == 0;
  const bool broken = std::wcscmp(arguments[1], L"broken") == 0;
  int next = 4;
  const long width = good && count > next + 1 ? _wtol(arguments[next++]) : 0;
  const long height = good && count > next ? _wtol(arguments[next++]) : 0;

  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  hosts::Expectations expect;
  {
    hosts::PrintHost host(arguments[2], _wtol(arguments[3]));
    std::string bytes;
    for (; next + 1 < count; next += 2) {
      bytes = BytesOf(arguments[next]);
      expect.True("the picture's file", !bytes.empty());
      host.Cell(L"SOCIO", arguments[next + 1], AsText(bytes), kPicture);
    }
    DeleteFileW(ScratchPicture().c_str());
    const HRESULT printed = host.Print();
    expect.Result("printed", broken ? hosts::ErrorResult(481) : S_OK, printed);
    expect.True("an error is no cancelling", !host.Cancelled());
    if (good) {
      CheckClipboard(width, height, expect);
      expect.True("the scratch picture", BytesOf(ScratchPicture()) == bytes);
    }
  }
  CoUninitialize();
  return expect.Finish();
}
