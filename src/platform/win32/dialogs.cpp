#include "platform/win32/dialogs.h"

#include <algorithm>

#include "platform/win32/common_dialogs.h"
#include "platform/win32/dialog.h"

namespace qm::platform::win32 {
namespace {

using Texts = std::vector<std::u16string>;

constexpr int kAnswerId = 101;
constexpr int kFirstEntryId = 200;
constexpr int kFirstBrowseId = 600;  // of the button beside the entry of the same place
constexpr std::size_t kFewChoices = 10;
constexpr std::u16string_view kPictures = u"Imagenes (*.bmp;*.jpg)|*.bmp;*.jpg";

int EntryId(std::size_t place) { return kFirstEntryId + static_cast<int>(place); }
int BrowseId(std::size_t place) { return kFirstBrowseId + static_cast<int>(place); }

class TextDialog : public Dialog {
 public:
  TextDialog(std::u16string_view title, const Texts& choices, std::u16string_view defaultAnswer)
      : Dialog(Layout(title, choices, defaultAnswer)), choices_(choices) {}

  [[nodiscard]] std::u16string Answer() { return Run() == IDOK ? answer_ : std::u16string(); }

 protected:
  void Command(int id, int notification) override {
    if (id == IDOK && choices_.empty()) answer_ = TextOf(kAnswerId);
    if (id == IDOK && !choices_.empty())
      if (const int chosen = SelectionOf(kAnswerId); chosen >= 0)
        answer_ = choices_[static_cast<std::size_t>(chosen)];
    Dialog::Command(id, notification);
  }

 private:
  static DialogLayout Layout(std::u16string_view title, const Texts& choices,
                             std::u16string_view defaultAnswer) {
    DialogLayout layout(title);
    layout.AddLabel(title);
    if (choices.empty()) {
      layout.AddEntry(kAnswerId, defaultAnswer);
    } else {
      const auto offered = std::find(choices.begin(), choices.end(), defaultAnswer);
      layout.AddList(kAnswerId, choices,
                     offered == choices.end() ? -1 : static_cast<int>(offered - choices.begin()));
    }
    if (choices.size() > kFewChoices) layout.MakeResizable();
    layout.AddOkAndCancel();
    return layout;
  }

  Texts choices_;
  std::u16string answer_;
};

class PropertiesDialog : public Dialog {
 public:
  PropertiesDialog(std::u16string_view title, const std::vector<PropertyEntry>& entries)
      : Dialog(Layout(title, entries)), entries_(entries) {}

  [[nodiscard]] std::optional<Texts> Answers() {
    if (Run() != IDOK) return std::nullopt;
    return std::move(answers_);
  }

 protected:
  void Command(int id, int notification) override {
    if (id == IDOK) Read();
    for (std::size_t place = 0; place < entries_.size(); ++place)
      if (id == BrowseId(place) && notification == BN_CLICKED) Browse(place);
    Dialog::Command(id, notification);
  }

 private:
  using Kind = PropertyEntry::Kind;

  static DialogLayout Layout(std::u16string_view title, const std::vector<PropertyEntry>& entries) {
    DialogLayout layout(title);
    for (std::size_t place = 0; place < entries.size(); ++place) {
      const PropertyEntry& entry = entries[place];
      if (entry.kind == Kind::Check) {
        layout.AddCheck(EntryId(place), WithoutAccessKey(entry.label), entry.text == u"1");
        continue;
      }
      layout.AddLabel(entry.label);
      if (entry.kind == Kind::Text) {
        layout.AddEntry(EntryId(place), entry.text);
        continue;
      }
      layout.BeginRow();
      layout.AddEntry(EntryId(place), entry.text);
      layout.AddPush(BrowseId(place), u"E&xaminar...");
      layout.End();
    }
    layout.AddOkAndCancel();
    return layout;
  }

  void Read() {
    answers_.clear();
    for (std::size_t place = 0; place < entries_.size(); ++place) {
      const bool isCheck = entries_[place].kind == Kind::Check;
      answers_.push_back(!isCheck ? TextOf(EntryId(place)) : TickedOf(EntryId(place)) ? u"1" : u"0");
    }
  }

  void Browse(std::size_t place) {
    const auto file = ShowOpenFile(kPictures, {});
    if (!file) return;
    SetText(EntryId(place), *file);
    SetFocus(ControlOf(EntryId(place)));
  }

  std::vector<PropertyEntry> entries_;
  Texts answers_;
};

class ChecksDialog : public Dialog {
 public:
  ChecksDialog(std::u16string_view title, const Texts& labels)
      : Dialog(Layout(title, labels)), ticked_(labels.size()) {}

  [[nodiscard]] std::optional<std::vector<bool>> Answers() {
    if (Run() != IDOK) return std::nullopt;
    return ticked_;
  }

 protected:
  void Command(int id, int notification) override {
    if (id == IDOK)
      for (std::size_t place = 0; place < ticked_.size(); ++place) ticked_[place] = TickedOf(EntryId(place));
    Dialog::Command(id, notification);
  }

 private:
  static DialogLayout Layout(std::u16string_view title, const Texts& labels) {
    DialogLayout layout(title);
    for (std::size_t place = 0; place < labels.size(); ++place)
      layout.AddCheck(EntryId(place), WithoutAccessKey(labels[place]), false);
    layout.AddOkAndCancel();
    return layout;
  }

  std::vector<bool> ticked_;
};

UINT IconFlag(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return MB_ICONINFORMATION;
    case Icon::Exclamation:
      return MB_ICONEXCLAMATION;
    case Icon::Critical:
      return MB_ICONERROR;
  }
  return 0;
}

}  // namespace

std::u16string Win32Dialogs::AskText(std::u16string_view title, const Texts& choices,
                                     std::u16string_view defaultAnswer) {
  return TextDialog(title, choices, defaultAnswer).Answer();
}

std::optional<Texts> Win32Dialogs::AskProperties(std::u16string_view title,
                                                 const std::vector<PropertyEntry>& entries) {
  return PropertiesDialog(title, entries).Answers();
}

std::optional<std::vector<bool>> Win32Dialogs::AskChecks(std::u16string_view title, const Texts& labels) {
  return ChecksDialog(title, labels).Answers();
}

bool Win32Dialogs::Confirm(std::u16string_view text) {
  return ShowMessage(kApplicationTitle, text, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void Win32Dialogs::Tell(Icon icon, std::u16string_view text) {
  (void)ShowMessage(kApplicationTitle, text, MB_OK | IconFlag(icon));
}

std::optional<std::u16string> Win32Dialogs::OpenFile(std::u16string_view filter,
                                                     std::u16string_view initialFolder) {
  return ShowOpenFile(filter, initialFolder);
}

std::optional<std::u16string> Win32Dialogs::SaveFile(std::u16string_view fileName) {
  return ShowSaveFile(fileName);
}

std::optional<std::int32_t> Win32Dialogs::ChooseColor(std::int32_t initial) { return ShowColor(initial); }

}  // namespace qm::platform::win32
