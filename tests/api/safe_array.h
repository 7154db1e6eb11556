#pragma once
// An array of a host.

#include <windows.h>

#include <oleauto.h>

#include <initializer_list>
#include <vector>

namespace qm::tests {

class SafeArray {
 public:
  struct Dimension {
    ULONG size;
    LONG first;
  };
  SafeArray(VARTYPE type, std::initializer_list<Dimension> dimensions) {
    std::vector<SAFEARRAYBOUND> bounds;
    for (const Dimension& dimension : dimensions) bounds.push_back({dimension.size, dimension.first});
    array_ = SafeArrayCreate(type, static_cast<UINT>(bounds.size()), bounds.data());
  }
  ~SafeArray() { SafeArrayDestroy(array_); }
  SafeArray(const SafeArray&) = delete;
  SafeArray& operator=(const SafeArray&) = delete;

  [[nodiscard]] SAFEARRAY* Get() const { return array_; }
  [[nodiscard]] SAFEARRAY** Ref() { return &array_; }

  void PutText(std::initializer_list<LONG> indices, const wchar_t* text) {
    BSTR copied = SysAllocString(text);
    PutPlain(indices, copied);
    SysFreeString(copied);
  }
  void PutShort(std::initializer_list<LONG> indices, SHORT number) { PutPlain(indices, &number); }
  void Put(std::initializer_list<LONG> indices, const VARIANT& value) { PutPlain(indices, &value); }
  void PutPlain(std::initializer_list<LONG> indices, const void* element) {
    std::vector<LONG> at(indices);
    SafeArrayPutElement(array_, at.data(), const_cast<void*>(element));
  }

 private:
  SAFEARRAY* array_;
};

}  // namespace qm::tests
