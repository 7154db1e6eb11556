#include "data/value_lookup.h"

#include <limits>
#include <optional>
#include <utility>

#include "data/dates.h"
#include "print/text/text_helpers.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::data {
namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr std::u16string_view kAmountMask = u"###,###,##0.00";
constexpr std::int16_t kDate = 5;

bool IsNumber(std::int16_t tipo) {
  return tipo == 2 || tipo == 3 || tipo == 6 || tipo == 7 || (tipo >= 80 && tipo <= 89);
}

const Field* FindField(const PrintJob& job, std::u16string_view name) {
  for (const auto& field : job.fields)
    if (field->campo == name) return field.get();
  return nullptr;
}

const Cell* FindCell(const Cells& cells, std::u16string_view name) {
  for (const Cell& cell : cells)
    if (runtime::EqualFolded(cell.campo, name)) return &cell;
  return nullptr;
}

// Moves on to the next prompt's answer. A failing prompt is counted as well.
std::u16string& NextAnswer(PromptState& state) {
  if (state.counter == std::numeric_limits<std::int16_t>::max()) throw RuntimeError(ErrorNumber::Overflow);
  ++state.counter;
  const auto position = static_cast<std::size_t>(state.counter);
  if (position >= state.answers.size()) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  return state.answers[position];
}

std::u16string Ask(std::u16string_view name, std::int16_t copy, PromptState& state,
                   platform::Prompts& prompts) {
  std::u16string& answer = NextAnswer(state);
  if (copy == kNoCopyNumbering) return answer;
  std::u16string prompt = u"Copia ";
  prompt.append(runtime::ToText(copy)).append(u": ").append(name.substr(2));
  answer = prompts.AskValue(prompt, static_cast<int>(name.size()), answer);
  return answer;
}

// "#2Duplicado" is a text of the second copy only; "#Conforme" one of every copy.
std::u16string LiteralText(std::u16string_view name, std::int16_t copy) {
  const int second = runtime::Asc(name.substr(1));  // error 5 for a lone "#"
  if (second < '0' || second > '9') return std::u16string(name.substr(1));
  if (copy != second - '0') return {};
  return std::u16string(runtime::Trim(name.substr(2)));
}

}  // namespace

std::optional<std::u16string> ValueLookup::LiteralOrField(std::u16string_view name, std::int16_t copy,
                                                          std::int16_t& kind, PromptState& state) {
  if (copy != state.lastCopy) state.counter = 0;
  state.lastCopy = copy;
  if (name.starts_with(u'#')) {
    kind = kLiteralText;
    return name.starts_with(u"#?") ? Ask(name, copy, state, prompts_) : LiteralText(name, copy);
  }
  if (const Field* const field = FindField(job_, name)) return field->valor;
  return std::nullopt;
}

std::u16string ValueLookup::CellText(const Cells& cells, std::u16string_view name, std::int16_t& kind) {
  const Cell* const cell = FindCell(cells, name);
  if (!cell) return {};
  kind = cell->tipo;
  if (IsNumber(cell->tipo)) return text::FormatNonZero(runtime::Val(cell->valor), kAmountMask, locale_);
  if (cell->tipo == kDate) return NormalizeDate(cell->valor, clock_.Now().year);
  return cell->valor;
}

std::u16string ValueLookup::ObtenerValor(std::u16string_view name, std::int16_t copy, std::int16_t& kind) {
  if (auto found = LiteralOrField(name, copy, kind, job_.cellPrompts)) return *std::move(found);
  return CellText(job_.cells, name, kind);
}

std::u16string ValueLookup::ObtenerValorFila(std::u16string_view name, std::int16_t copy, std::int16_t& kind,
                                             int row) {
  if (auto found = LiteralOrField(name, copy, kind, job_.rowPrompts)) return *std::move(found);
  if (row < 0 || static_cast<std::size_t>(row) >= job_.rows.size())
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  std::optional<Cells>& cells = job_.rows[static_cast<std::size_t>(row)];
  if (!cells) cells.emplace();
  return CellText(*cells, name, kind);
}

}  // namespace qm::data
