#pragma once
// The one failure type of the core: a numbered error of the automation runtime with its Spanish text.
// The automation boundary turns it into HRESULT 0x800A0000 + number with IErrorInfo.

#include <exception>
#include <string>
#include <string_view>

namespace qm::runtime {

enum class ErrorNumber : int {
  InvalidArgument = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  FileNotFound = 53,
  FileAlreadyOpen = 55,
  InputOutput = 57,
  DiskFull = 61,
  ReadPastEnd = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  InvalidUseOfNull = 94,
  MissingControlElement = 340,
  FormAlreadyShown = 400,
  InvalidPicture = 481,
  PrinterError = 482,
};

class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(ErrorNumber number);  // with the runtime's own Spanish description
  RuntimeError(int number, std::u16string description);

  [[nodiscard]] int number() const noexcept { return number_; }
  [[nodiscard]] bool Is(ErrorNumber number) const noexcept { return number_ == static_cast<int>(number); }
  [[nodiscard]] const std::u16string& description() const noexcept { return description_; }
  [[nodiscard]] const char* what() const noexcept override { return "runtime error"; }

 private:
  int number_;
  std::u16string description_;
};

// The runtime's Spanish text of an error number; "Error definido por la aplicación o el objeto" for others.
[[nodiscard]] std::u16string_view DescriptionOf(int number) noexcept;

}  // namespace qm::runtime
