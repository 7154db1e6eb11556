// attach_host MODELS.xml NUMBER FOLDER FILE [--warns TEXT] [--locks FILE] [FIELD=VALUE ...]
// A host that calls CrearZip and prints "made" or "error N: description", and in a second line the folder
// that it was given back. --warns: the user must see, and closes, a message of that text. --locks: another
// part of the host keeps that file to itself meanwhile.
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "tests/wine/documents/dialog_user.h"
#include "tests/wine/documents/print_host.h"

namespace {

using namespace Qm_Modelo_Impresion3;
using hosts::Bstr;
using hosts::Dialogs;

std::string Utf8(std::wstring_view text) {
  return qm::runtime::ToUtf8(std::u16string(text.begin(), text.end()));
}

std::string ErrorText() {
  IErrorInfo* information = nullptr;
  if (GetErrorInfo(0, &information) != S_OK) return {};
  BSTR text = nullptr;
  information->GetDescription(&text);
  information->Release();
  const std::string result = text ? Utf8(text) : std::string();
  SysFreeString(text);
  return result;
}

struct Request {
  std::wstring models, number, folder, file;
  std::optional<std::wstring> warning, locked;
  std::vector<std::wstring> fields;
};

Request Parse(int count, wchar_t** arguments) {
  Request request{arguments[1], arguments[2], arguments[3], arguments[4], {}, {}, {}};
  for (int i = 5; i < count; ++i) {
    const std::wstring argument = arguments[i];
    if (argument == L"--warns" && i + 1 < count) {
      request.warning = arguments[++i];
    } else if (argument == L"--locks" && i + 1 < count) {
      request.locked = arguments[++i];
    } else {
      request.fields.push_back(argument);
    }
  }
  return request;
}

void Fill(_PrintForm& form, const Request& request) {
  form.put_XMLFileName(Bstr(request.models));
  VARIANT number{};
  number.vt = VT_I4;
  number.lVal = std::stol(request.number);
  form.put_NumeroModelo(number);
  for (const std::wstring& field : request.fields) {
    const std::size_t equals = field.find(L'=');
    Bstr name(field.substr(0, equals));
    const Bstr text(field.substr(equals + 1));
    VARIANT value{};
    value.vt = VT_BSTR;
    value.bstrVal = text;
    _Campos* added = nullptr;
    form.AsignarCampo(name.Place(), &value, &added);
    if (added) added->Release();
  }
}

int Run(const Request& request) {
  _PrintForm* form = nullptr;
  if (FAILED(CoCreateInstance(CLSID_PrintForm, nullptr, CLSCTX_INPROC_SERVER, IID__PrintForm,
                              reinterpret_cast<void**>(&form)))) {
    return 4;
  }
  hosts::DialogUser user;
  if (request.warning) {
    user.Foresee({u"Modelos de impresión", std::u16string(request.warning->begin(), request.warning->end()),
                  [](HWND dialog) { Dialogs::Click(dialog, IDOK); }});
  }
  Fill(*form, request);
  HANDLE locked = nullptr;
  if (request.locked)
    locked = CreateFileW(request.locked->c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  Bstr folder(request.folder);
  Bstr file(request.file);
  const HRESULT result = form->CrearZip(folder.Place(), file.Place());
  if (locked) CloseHandle(locked);
  if (SUCCEEDED(result)) {
    std::printf("made\n");
  } else {
    std::printf("error %ld: %s\n", result & 0xFFFF, ErrorText().c_str());
  }
  std::printf("%s\n", Utf8(static_cast<BSTR>(folder)).c_str());
  form->Release();
  return user.Done() ? 0 : 5;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count < 5) return 2;
  CoInitialize(nullptr);
  const int result = Run(Parse(count, arguments));
  CoUninitialize();
  return result;
}
