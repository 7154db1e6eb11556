#pragma once
// A host's record file whose calls are written down in their order, "TipoCampo 1" a line. It answers from a
// table; any call can be told to fail.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/record_file.h"
#include "runtime/error.h"

namespace qm::fakes {

class RecordedRecordFile : public platform::RecordFile {
 public:
  struct Column {
    std::u16string name;
    std::vector<std::int16_t> types;  // one answer after the other; the last one stays
  };
  using Record = std::vector<std::optional<std::u16string>>;  // nothing: Null

  std::vector<Column> columns;
  std::vector<Record> records;
  std::vector<std::u16string> tables = {u"CLIEN"};  // one answer after the other; the last one stays
  std::size_t position = 0;
  std::optional<std::int32_t> counted;     // instead of the true number of records
  bool endless = false;                    // the last record comes again and again
  std::optional<std::string> failingCall;  // a line of the log
  runtime::RuntimeError failure{1001, u"error de la aplicación"};
  std::function<void()> onValue = [] {};

  std::string log;

  [[nodiscard]] std::int16_t TipoCampo(std::int16_t campo) override {
    Note("TipoCampo", campo);
    return Next(At(campo).types);
  }
  [[nodiscard]] bool FinArchivo() override {
    Note("FinArchivo");
    return position >= records.size();
  }
  void Siguiente() override {
    Note("Siguiente");
    if (!endless) ++position;
  }
  [[nodiscard]] std::int32_t NumeroRegistros() override {
    Note("NumeroRegistros");
    return counted.value_or(static_cast<std::int32_t>(records.size()));
  }
  [[nodiscard]] std::int16_t NumeroCampos() override {
    Note("NumeroCampos");
    return static_cast<std::int16_t>(columns.size());
  }
  [[nodiscard]] std::u16string ValorCampo(std::int16_t campo) override {
    Note("ValorCampo", campo);
    onValue();
    const auto& value = records.at(position).at(static_cast<std::size_t>(campo) - 1);
    if (!value) throw runtime::RuntimeError(runtime::ErrorNumber::InvalidUseOfNull);
    return *value;
  }
  [[nodiscard]] std::u16string NombreDelCampo(std::int16_t campo) override {
    Note("NombreDelCampo", campo);
    return At(campo).name;
  }
  [[nodiscard]] std::u16string NombreDeTabla() override {
    Note("NombreDeTabla");
    return Next(tables);
  }

 private:
  Column& At(std::int16_t campo) { return columns.at(static_cast<std::size_t>(campo) - 1); }

  template <class Answer>
  static Answer Next(std::vector<Answer>& answers) {
    Answer answer = answers.front();
    if (answers.size() > 1) answers.erase(answers.begin());
    return answer;
  }

  void Note(std::string_view call, int campo = 0) {
    std::string line(call);
    if (campo) line += " " + std::to_string(campo);
    if (!endless) log += line + "\n";
    if (failingCall == line) throw failure;
  }
};

}  // namespace qm::fakes
