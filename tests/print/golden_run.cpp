#include "tests/print/golden_run.h"

#include <charconv>
#include <utility>

#include "runtime/strings.h"
#include "tests/print/printing_world.h"

namespace qm::print {

namespace {

std::u16string Wide(std::string_view text) { return runtime::FromUtf8(text); }
std::string Narrow(std::u16string_view text) { return runtime::ToUtf8(text); }

std::pair<std::string_view, std::string_view> Cut(std::string_view text, char at) {
  const auto position = text.find(at);
  if (position == std::string_view::npos) return {text, {}};
  return {text.substr(0, position), text.substr(position + 1)};
}

template <typename Int>
Int Integer(std::string_view text) {
  Int value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

// A user whose prompts and answers stand in the log.
class LoggedPrompts : public fakes::ScriptedPrompts {
 public:
  explicit LoggedPrompts(std::string& log) : log_(log) {}

  std::u16string AskValue(std::u16string_view prompt, int nameLength,
                          std::u16string_view defaultAnswer) override {
    std::u16string answer = ScriptedPrompts::AskValue(prompt, nameLength, defaultAnswer);
    log_ += "ask \"" + Narrow(prompt) + "\" " + std::to_string(nameLength) + " \"" + Narrow(defaultAnswer) +
            "\": " + Narrow(answer) + "\n";
    return answer;
  }
  std::u16string ChoosePrinter(std::u16string_view title, std::u16string_view text,
                               const std::vector<std::u16string>& names) override {
    log_ += "choose \"" + Narrow(title) + "\" \"" + Narrow(text) + "\"";
    for (const auto& name : names) log_ += "|" + Narrow(name);
    log_ += ": " + (printer ? Narrow(*printer) : "fails") + "\n";
    return ScriptedPrompts::ChoosePrinter(title, text, names);
  }
  void Warn(std::u16string_view text) override { log_ += "warn " + Narrow(text) + "\n"; }

 private:
  std::string& log_;
};

class LoggedSpooler : public fakes::ScriptedSpooler {
 public:
  explicit LoggedSpooler(std::string& log) : log_(log) {}

  platform::SpoolerOutcome AddForm(std::u16string_view device, const platform::PaperForm& form) override {
    const auto outcome = ScriptedSpooler::AddForm(device, form);
    log_ += "add form " + Narrow(form.name) + " " + std::to_string(form.width) + "x" +
            std::to_string(form.height) + Outcome(outcome);
    return outcome;
  }
  platform::SpoolerOutcome DeleteForm(std::u16string_view device, std::u16string_view name) override {
    const auto outcome = ScriptedSpooler::DeleteForm(device, name);
    log_ += "delete form " + Narrow(name) + Outcome(outcome);
    return outcome;
  }

 private:
  static std::string Outcome(const platform::SpoolerOutcome& outcome) {
    if (!outcome.opened) return ": no printer\n";
    return outcome.error == 0 ? "\n" : ": error " + std::to_string(outcome.error) + "\n";
  }

  std::string& log_;
};

class Run {
 public:
  explicit Run(std::string_view modelFileBytes) {
    modelFile_.SetName(u"C:\\Modelos\\modelo.xml");
    files_.Replace(modelFile_.name, modelFileBytes);
  }

  void Command(std::string_view line);
  std::string TakeLog() { return std::move(log_); }

 private:
  struct Handler {
    std::string_view command;
    void (Run::*run)(std::string_view argument);
  };
  static const Handler kHandlers[];

  void Remark(std::string_view) {}
  void SetLocale(std::string_view name) {
    locale_ = name == "en" ? runtime::Locale::English() : runtime::Locale::Spanish();
  }
  void SetModel(std::string_view number) { job_.numeroModelo = Wide(number); }
  void SetField(std::string_view argument) {
    const auto [name, value] = Cut(argument, '=');
    data::AsignarCampo(job_, Wide(name), Wide(value));
  }
  void AddCell(std::string_view argument) {
    const auto [kind, rest] = Cut(argument, ' ');
    const auto [name, value] = Cut(rest, '=');
    data::AñadirCampoTabla(job_, {u"TABLA", Wide(name), Wide(value), Integer<std::int16_t>(kind)});
  }
  void AddPicture(std::string_view argument) {
    const auto [name, size] = Cut(argument, '=');
    files_.Replace(modelFile_.folder + Wide(name), "PICTURE " + std::string(size));
  }
  void SetPrinters(std::string_view names) {
    printers_.names = runtime::Split(Wide(names), u"|");
    printers_.defaultName = printers_.names.empty() ? u"" : printers_.names.front();
  }
  void SetForms(std::string_view argument) {
    const auto [printer, names] = Cut(argument, '=');
    spooler_.AddPrinter(Wide(printer), runtime::Split(Wide(names), u"|"));
  }
  void NoForms(std::string_view) { spooler_.supportsForms = false; }
  void Answer(std::string_view text) { prompts_.answers.push_back(Wide(text)); }
  void Choose(std::string_view answer) {
    if (answer == "fails")
      prompts_.printer = std::nullopt;
    else
      prompts_.printer = Wide(answer);
  }
  void Fail(std::string_view argument) {
    const auto [what, which] = Cut(argument, ' ');
    (what == "end" ? printers_.faults.end : printers_.faults.text) = Integer<int>(which);
  }
  void Print(std::string_view) {
    Act("print", [this](const Environment& environment) {
      return print::Print(job_, environment, FindCurrentModel(job_, environment));
    });
  }
  void Draw(std::string_view) {
    Act("draw", [this](const Environment& environment) {
      fakes::RecordingSurface surface;
      surface.LogTo(log_);
      return print::Draw(job_, environment, FindCurrentModel(job_, environment), surface);
    });
  }
  template <typename Action>
  void Act(std::string_view name, Action action);

  std::string log_;
  fakes::MemoryFiles files_;
  fakes::FakePrinters printers_{log_};
  LoggedSpooler spooler_{log_};
  fakes::FakePictures pictures_{files_, log_};
  LoggedPrompts prompts_{log_};
  fakes::FixedClock clock_;
  model::ModelFile modelFile_;
  PaperFormState paperForms_;
  data::PrintJob job_;
  runtime::Locale locale_ = runtime::Locale::Spanish();
};

const Run::Handler Run::kHandlers[] = {
    {"#", &Run::Remark},
    {"locale", &Run::SetLocale},
    {"model", &Run::SetModel},
    {"field", &Run::SetField},
    {"cell", &Run::AddCell},
    {"picture", &Run::AddPicture},
    {"printers", &Run::SetPrinters},
    {"forms", &Run::SetForms},
    {"no", &Run::NoForms},
    {"answer", &Run::Answer},
    {"choose", &Run::Choose},
    {"fail", &Run::Fail},
    {"print", &Run::Print},
    {"draw", &Run::Draw},
};

void Run::Command(std::string_view line) {
  if (line.empty()) return;
  const auto [command, argument] = Cut(line, ' ');
  for (const Handler& handler : kHandlers)
    if (handler.command == command) return (this->*handler.run)(argument);
  log_.append("unknown command: ").append(line).append("\n");
}

template <typename Action>
void Run::Act(std::string_view name, Action action) {
  log_.append("> ").append(name).append("\n");
  try {
    const Environment environment{files_, printers_,  spooler_,    pictures_, prompts_,
                                  clock_, modelFile_, paperForms_, locale_};
    log_ += action(environment) ? "= True\n" : "= False\n";
  } catch (const runtime::RuntimeError& error) {
    log_ += "= error " + std::to_string(error.number()) + " " + Narrow(error.description()) + "\n";
  }
}

}  // namespace

std::string GoldenLog(std::string_view modelFileBytes, std::string_view script) {
  Run run(modelFileBytes);
  while (!script.empty()) {
    const auto [line, rest] = Cut(script, '\n');
    run.Command(line);
    script = rest;
  }
  return run.TakeLog();
}

}  // namespace qm::print
