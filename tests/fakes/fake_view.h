#pragma once
// A designer's window that writes down what it is told to show.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "designer/view.h"

namespace qm::fakes {

class FakeView : public designer::View {
 public:
  int layoutChanges = 0;
  int marksChanges = 0;
  int placeChanges = 0;
  std::vector<std::u16string> readouts;
  std::vector<designer::PopUp> popUps;
  std::vector<int> selectedModels;
  struct Printers {
    std::vector<std::u16string> names;
    int selected = -1;
    bool operator==(const Printers&) const = default;
  };
  std::vector<Printers> printers;
  std::vector<designer::FieldProperties*> shownProperties;
  int unloads = 0;

  std::function<void()> whilePopUp = [] {};  // what the user does with the pop-up menu or the dialog
  std::function<void(designer::FieldProperties&)> whileProperties = [](designer::FieldProperties&) {};

  void LayoutChanged(const designer::Layout&, const designer::Layout&) override { ++layoutChanges; }
  void MarksChanged() override { ++marksChanges; }
  void PlaceChanged() override { ++placeChanges; }
  void ShowReadout(std::u16string_view text) override { readouts.emplace_back(text); }
  void ShowPopUp(designer::PopUp menu) override {
    popUps.push_back(menu);
    whilePopUp();
  }
  void SelectModel(int position) override { selectedModels.push_back(position); }
  void ShowPrinters(const std::vector<std::u16string>& names, int selected) override {
    printers.push_back({names, selected});
  }
  void ShowProperties(designer::FieldProperties& properties) override {
    shownProperties.push_back(&properties);
    whileProperties(properties);
  }
  void Unload() override { ++unloads; }
};

}  // namespace qm::fakes
