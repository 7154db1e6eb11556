#pragma once
// The record file that a host passes, called late-bound by the names of its members. Any automation object
// with the eight operations serves, one of a script too. The vtable is not used: only the order of these
// eight members is known of it, not what else stands between them in the library that the host has.
// The number of a field goes by reference: to an integer, as the interface has it and compiled hosts pass it;
// to a variant where the object is a script engine's, as these pass their variables. Errors: 91 for Nothing,
// 438 for a member that the object lacks, what the object raises as it is.

#include <windows.h>

#include <oaidl.h>
#include <wrl/client.h>

#include <array>
#include <optional>

#include "automation/variants.h"
#include "platform/record_file.h"

namespace qm::api {

class HostRecordFile final : public platform::RecordFile {
 public:
  // Keeps the object alive: the host may let go of it while it is being asked.
  explicit HostRecordFile(IUnknown* object);

  [[nodiscard]] std::int16_t TipoCampo(std::int16_t campo) override;
  [[nodiscard]] bool FinArchivo() override;
  void Siguiente() override;
  [[nodiscard]] std::int32_t NumeroRegistros() override;
  [[nodiscard]] std::int16_t NumeroCampos() override;
  [[nodiscard]] std::u16string ValorCampo(std::int16_t campo) override;
  [[nodiscard]] std::u16string NombreDelCampo(std::int16_t campo) override;
  [[nodiscard]] std::u16string NombreDeTabla() override;

 private:
  static constexpr std::size_t kMembers = 8;

  void Invoke(std::size_t member, VARIANT* argument, VARIANT* result);
  void Ask(std::size_t member, automation::OwnedVariant& answer);
  void AskOfField(std::size_t member, std::int16_t field, automation::OwnedVariant& answer);

  Microsoft::WRL::ComPtr<IDispatch> object_;
  bool ofScript_ = false;
  std::array<std::optional<DISPID>, kMembers> ids_;  // asked for at each member's first call
};

}  // namespace qm::api
