#pragma once
// Writes the type library of a table.
// Errors: a failing HRESULT is thrown as WriteError.
// A 32-bit process loses functions when it writes a 64-bit library: run it as a 64-bit program, with 1252 as
// the ANSI code page (names have a tilde).

#include <windows.h>

#include <oaidl.h>

#include <exception>
#include <span>

#include "automation/typelib/description.h"

namespace qm::automation {

struct WriteError : std::exception {
  HRESULT result;
  explicit WriteError(HRESULT failure) : result(failure) {}
};

// An interface of another library, and the file of that library.
struct ImportedInterface {
  const Interface* face;
  const wchar_t* file;
};

void WriteTypeLibrary(const Library& described, SYSKIND system, const wchar_t* file,
                      std::span<const ImportedInterface> imports = {});

}  // namespace qm::automation
