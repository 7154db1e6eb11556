#include "platform/win32/dialog_layout.h"

#include "platform/win32/wide.h"

namespace qm::platform::win32 {
namespace {

constexpr int kListWidth = 60;
constexpr int kListHeight = 82;

}  // namespace

DialogLayout::Control& DialogLayout::Add(Kind kind, int id, std::u16string_view text) {
  Control control;
  control.kind = kind;
  control.id = id;
  control.text = text;
  if (!open_.empty()) control.parent = open_.back();
  controls_.push_back(std::move(control));
  return controls_.back();
}

void DialogLayout::Begin(Kind kind, std::u16string_view text) {
  Add(kind, kind == Kind::Group ? nextGroupId_++ : 0, text);
  open_.push_back(static_cast<int>(controls_.size()) - 1);
}

void DialogLayout::AddLabel(std::u16string_view text) { Add(Kind::Label, nextLabelId_++, text); }
void DialogLayout::AddNote(std::u16string_view text) { AddNote(nextLabelId_++, text); }
void DialogLayout::AddNote(int id, std::u16string_view text) { Add(Kind::Note, id, text); }
void DialogLayout::AddEntry(int id, std::u16string_view text) { Add(Kind::Entry, id, text); }
void DialogLayout::AddEntry(int id, std::u16string_view text, int width, int height) {
  Control& entry = Add(Kind::Entry, id, text);
  entry.width = width;
  entry.height = height;
}
void DialogLayout::AddList(int id, const std::vector<std::u16string>& items, int selected) {
  AddList(id, items, selected, kListWidth, kListHeight);
}
void DialogLayout::AddList(int id, const std::vector<std::u16string>& items, int selected, int width,
                           int height) {
  Control& list = Add(Kind::List, id, {});
  list.items = items;
  list.selected = selected;
  list.width = width;
  list.height = height;
}
void DialogLayout::AddChoice(int id, const std::vector<std::u16string>& items, int selected) {
  Control& choice = Add(Kind::Choice, id, {});
  choice.items = items;
  choice.selected = selected;
}
void DialogLayout::AddCheck(int id, std::u16string_view text, bool ticked) {
  Add(Kind::Check, id, text).selected = ticked ? 1 : 0;
}
void DialogLayout::AddDrawing(int id, int width, int height) {
  Control& drawing = Add(Kind::Drawing, id, {});
  drawing.width = width;
  drawing.height = height;
}
void DialogLayout::AddPush(int id, std::u16string_view text) { Add(Kind::Push, id, text); }
void DialogLayout::AddButton(int id, std::u16string_view text) { Add(Kind::Button, id, text); }
void DialogLayout::AddOkAndCancel(std::u16string_view ok, std::u16string_view cancel) {
  AddButton(IDOK, ok);
  AddButton(IDCANCEL, cancel);
}

std::u16string WithoutAccessKey(std::u16string_view text) {
  std::u16string shown;
  for (const char16_t letter : text) shown.append(letter == u'&' ? 2 : 1, letter);
  return shown;
}

}  // namespace qm::platform::win32
