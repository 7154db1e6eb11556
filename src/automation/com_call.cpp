#include "automation/com_call.h"

#include <oleauto.h>
#include <wrl/client.h>

#include <new>
#include <string>

#include "automation/text.h"

namespace qm::automation {

namespace {

using Microsoft::WRL::ComPtr;
using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr int kInternalError = 51;

HRESULT Publish(int number, std::u16string_view description, const Interface& face) noexcept {
  ComPtr<ICreateErrorInfo> making;
  ComPtr<IErrorInfo> made;
  if (SUCCEEDED(CreateErrorInfo(&making))) {
    const std::u16string source(face.library->name);
    const std::u16string text(description);
    making->SetGUID(face.id);
    making->SetSource(AsWide(source));
    making->SetDescription(AsWide(text));
    if (SUCCEEDED(making.As(&made))) SetErrorInfo(0, made.Get());
  }
  return ResultOf(number);
}

// The error information that an object of the host left, as text; empty when there is none.
std::u16string TakeDescription() {
  ComPtr<IErrorInfo> information;
  BSTR description = nullptr;
  if (GetErrorInfo(0, &information) != S_OK || FAILED(information->GetDescription(&description))) return {};
  std::u16string text(TextOf(description));
  SysFreeString(description);
  return text;
}

}  // namespace

HRESULT ReportCurrentException(const Interface& face) noexcept {
  try {
    try {
      throw;
    } catch (const RuntimeError& error) {
      return Publish(error.number(), error.description(), face);
    } catch (const std::bad_alloc&) {
      return Publish(static_cast<int>(ErrorNumber::OutOfMemory), u"Memoria insuficiente", face);
    } catch (...) {
      return Publish(kInternalError, u"Error interno", face);
    }
  } catch (...) {  // no memory for the description either
    return ResultOf(static_cast<int>(ErrorNumber::OutOfMemory));
  }
}

void ThrowIfFailed(HRESULT result) {
  if (SUCCEEDED(result)) return;
  switch (result) {
    case DISP_E_TYPEMISMATCH:
    case DISP_E_BADVARTYPE:
      throw RuntimeError(ErrorNumber::TypeMismatch);
    case DISP_E_OVERFLOW:
      throw RuntimeError(ErrorNumber::Overflow);
    case DISP_E_BADINDEX:
      throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    case DISP_E_MEMBERNOTFOUND:
      throw RuntimeError(kNoSuchMember, u"El objeto no admite esta propiedad o método");
    case E_OUTOFMEMORY:
      throw std::bad_alloc();
    case E_INVALIDARG:
      throw RuntimeError(ErrorNumber::InvalidArgument);
    default:
      break;
  }
  ThrowFailure(result, TakeDescription());
}

void ThrowFailure(HRESULT result, std::u16string description) {
  int number = FAILED(result) ? static_cast<int>(result) : kAutomationError;
  if (FAILED(result) && HRESULT_FACILITY(result) == FACILITY_CONTROL) {
    number = HRESULT_CODE(result);
    if (description.empty()) description = runtime::DescriptionOf(number);
  }
  if (description.empty()) description = u"Error de automatización";
  throw RuntimeError(number, std::move(description));
}

}  // namespace qm::automation
