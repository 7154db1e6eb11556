#pragma once
// The portable state of one print job: what the host poured in and what the engines remember between
// actions. The automation object owns one; engines and loaders work on it by reference.

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace qm::data {

struct Field {
  std::u16string campo;
  std::u16string valor;
};

struct Table {
  std::u16string tabla;
};

struct Cell {
  std::u16string tabla;
  std::u16string campo;
  std::u16string valor;
  std::int16_t tipo = 0;
};

using Cells = std::vector<Cell>;

// The answers that the user gave to "#?" fields, by the order of their asking.
struct PromptState {
  std::array<std::u16string, 21> answers;
  std::int16_t counter = 0;
  std::int16_t lastCopy = 0;
};

// The host's model number as it came: nothing, Null, a number or a text.
struct NullNumber {};
using ModelNumber = std::variant<std::monostate, NullNumber, double, std::u16string>;

struct MailSettings {
  std::u16string attachments;
  std::u16string htmDir;
  std::u16string rutaEmail;
  std::u16string email;
  std::u16string emailCC;
  std::u16string desCC;
  std::u16string nombreDestinatario;
  std::u16string emailTexto;
  std::u16string emailTema;
  std::u16string smtpHost;
  std::int32_t smtpPort = 0;
  bool ssl = false;
  std::u16string from;
  std::u16string fromDisplayName;
  std::u16string userName;
  std::u16string password;
  bool useAuthentication = false;
  bool usePopAuthentication = false;
  std::u16string pop3Host;
  bool receipt = false;
};

struct PrintJob {
  ModelNumber numeroModelo;

  // Records are shared with the automation objects that the host holds of them.
  std::vector<std::shared_ptr<Field>> fields;
  std::vector<std::shared_ptr<Table>> tables;
  Cells cells;
  std::vector<std::optional<Cells>> rows;  // one slot a record, empty where nothing was loaded

  std::int16_t menuCounter = 0;  // the next free picker menu of the designer; never reset

  PromptState cellPrompts;
  PromptState rowPrompts;
  std::optional<std::u16string> substitutePrinter;

  MailSettings mail;
};

}  // namespace qm::data
