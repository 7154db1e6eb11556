#pragma once
// The arguments of one late-bound call, as the vtable wants them. It holds converted copies for as long as
// the call runs.

#include <windows.h>

#include <oaidl.h>

#include <array>
#include <string>

#include "automation/typelib/description.h"
#include "automation/variants.h"

namespace qm::automation {

class Arguments {
 public:
  // Errors: 448 for a name that no parameter has, 449 for a missing argument, 450 for too many; 13, 6 and 94
  // for values.
  void Take(const Function& function, const DISPPARAMS& passed);
  void AddResult(const Function& function, OwnedVariant& returned);
  // After the call: what it changed in converted copies goes to the host's variables.
  void GiveBack() noexcept;

  // Of the argument being taken, in the order of DISPPARAMS.
  [[nodiscard]] UINT Wrong() const noexcept { return wrong_; }

  [[nodiscard]] UINT Count() const noexcept { return count_; }
  [[nodiscard]] VARTYPE* Types() noexcept { return types_.data(); }
  [[nodiscard]] VARIANTARG** Values() noexcept { return values_.data(); }

 private:
  struct Argument {
    VARIANT passed{};                 // as the vtable wants it
    OwnedVariant converted;           // what it may point to
    const VARIANT* origin = nullptr;  // the host's reference, to give a change back
    std::u16string textBefore;
    LONG numberBefore = 0;
  };

  void Place(const Function& function, const DISPPARAMS& passed,
             std::array<const VARIANT*, kMostParameters>& given);
  void TakeReference(const VARIANT& source, const Parameter& parameter, Argument& argument);
  void TakeScalarReference(const VARIANT& source, VARTYPE type, Argument& argument);
  void TakeValue(const VARIANT& source, Type type, Argument& argument);
  Argument& Add(VARTYPE type);

  static constexpr std::size_t kMost = kMostParameters + 1;  // and the result
  std::array<Argument, kMost> arguments_;
  std::array<VARTYPE, kMost> types_{};
  std::array<VARIANTARG*, kMost> values_{};
  UINT count_ = 0;
  UINT wrong_ = 0;
};

}  // namespace qm::automation
