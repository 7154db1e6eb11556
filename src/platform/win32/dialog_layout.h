#pragma once
// What a small dialog consists of: controls in columns, rows and groups, and a row of buttons below. Controls
// stand in the order in which they are added, which is that of the Tab key.
// Units: dialog units where a size is given.
// Texts of check boxes, groups and buttons may mark an access key with "&"; labels show it as it is.

#include <string>
#include <string_view>
#include <vector>

namespace qm::platform::win32 {

class DialogLayout {
 public:
  enum class Kind {
    Label,    // wrapped; very long ones scroll
    Note,     // a label that takes the width that there is
    Entry,    // one line, all of it selected
    List,     // of which one item can be selected
    Choice,   // a drop-down list
    Check,    // a box to tick
    Drawing,  // drawn by the dialog, of a given size
    Push,     // a button among the other controls
    Button,   // one of the row below
    Group,
    Row,
    Column,
  };
  struct Control {
    Kind kind;
    int id = 0;
    std::u16string text;
    std::vector<std::u16string> items;
    int selected = -1;  // of the items; 1 for a box with its tick
    int width = 0;      // of a drawing; the least of a list
    int height = 0;     // likewise
    int parent = kNoParent;
  };
  static constexpr int kNoParent = -1;
  // Labels are numbered in their order from here, groups from there.
  static constexpr int kFirstLabelId = 1000;
  static constexpr int kFirstGroupId = 2000;

  explicit DialogLayout(std::u16string_view title) : title_(title) {}

  void AddLabel(std::u16string_view text);
  void AddNote(std::u16string_view text);
  void AddNote(int id, std::u16string_view text);
  void AddEntry(int id, std::u16string_view text);
  // Of that least width, and of that height where it is not 0.
  void AddEntry(int id, std::u16string_view text, int width, int height = 0);
  // The first item is selected; with -1 none is.
  void AddList(int id, const std::vector<std::u16string>& items, int selected = 0);
  void AddList(int id, const std::vector<std::u16string>& items, int selected, int width, int height);
  void AddChoice(int id, const std::vector<std::u16string>& items, int selected);
  void AddCheck(int id, std::u16string_view text, bool ticked);
  void AddDrawing(int id, int width, int height);
  void AddPush(int id, std::u16string_view text);
  void AddButton(int id, std::u16string_view text);  // IDOK is the default one
  void AddOkAndCancel(std::u16string_view ok = u"Aceptar", std::u16string_view cancel = u"Cancelar");

  // What is added until End belongs to it.
  void BeginGroup(std::u16string_view title) { Begin(Kind::Group, title); }
  void BeginRow() { Begin(Kind::Row, {}); }
  void BeginColumn() { Begin(Kind::Column, {}); }
  void End() { open_.pop_back(); }

  // The user can make the dialog larger.
  void MakeResizable() { resizable_ = true; }
  [[nodiscard]] bool Resizable() const { return resizable_; }

  [[nodiscard]] const std::u16string& Title() const { return title_; }
  // A group, row or column stands before what belongs to it.
  [[nodiscard]] const std::vector<Control>& Controls() const { return controls_; }

 private:
  void Begin(Kind kind, std::u16string_view text);
  Control& Add(Kind kind, int id, std::u16string_view text);

  std::u16string title_;
  std::vector<Control> controls_;
  std::vector<int> open_;
  int nextLabelId_ = kFirstLabelId;
  int nextGroupId_ = kFirstGroupId;
  bool resizable_ = false;
};

// Rows and columns only place what belongs to them.
[[nodiscard]] inline bool HasWindow(const DialogLayout::Control& control) {
  return control.kind != DialogLayout::Kind::Row && control.kind != DialogLayout::Kind::Column;
}

// The text with "&" shown as it is where it would mark an access key.
[[nodiscard]] std::u16string WithoutAccessKey(std::u16string_view text);

}  // namespace qm::platform::win32
