#pragma once
// Printers whose jobs are written to one readable log, besides the lines of the recording surface:
//   open Impresora A4                        a printer taken as the surface
//   paper code=7 "PS" 11906x16848            a paper set for the next job
//   new page                                 the next page of a job
//   end                                      a job sent
//   abandoned                                a job thrown away with the surface
// Texts, new pages and ends of jobs can be told to fail with 482.

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printers.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "tests/fakes/recording_surface.h"

namespace qm::fakes {

struct PrinterFaults {
  int text = 0;  // which text of the surface fails, the opening blank being the first; 0 none
  int page = 0;  // which new page fails; 0 none
  int end = 0;   // which end of a job fails; 0 none
};

class RecordingPrinter : public Recording<platform::PrinterSurface> {
 public:
  RecordingPrinter(std::u16string_view deviceName, const PrinterFaults& faults, std::string& log)
      : deviceName_(deviceName), faults_(faults) {
    LogTo(log);
    Write("open " + runtime::ToUtf8(deviceName_));
  }
  ~RecordingPrinter() override {
    if (jobStarted_) Write("abandoned");
  }

  [[nodiscard]] std::u16string DeviceName() const override { return deviceName_; }

  void SetPaper(const platform::Paper& paper) override {
    Write("paper code=" + std::to_string(paper.code) + " \"" + runtime::ToUtf8(paper.formName) + "\" " +
          Number(paper.widthTwips) + "x" + Number(paper.heightTwips));
    SetScaleWidth(paper.widthTwips);
  }

  void PrintText(platform::Point at, std::u16string_view text) override {
    jobStarted_ = true;
    if (++texts_ == faults_.text) Fail();
    Recording::PrintText(at, text);
  }

  void PaintPicture(const platform::Picture& picture, platform::Point at) override {
    jobStarted_ = true;
    Recording::PaintPicture(picture, at);
  }

  void NewPage() override {
    if (!jobStarted_ || ++pages_ == faults_.page) Fail();
    Write("new page");
  }

  void EndDoc() override {
    if (++ends_ == faults_.end) Fail();
    jobStarted_ = false;
    Write("end");
  }

 private:
  [[noreturn]] static void Fail() { throw runtime::RuntimeError(runtime::ErrorNumber::PrinterError); }

  std::u16string deviceName_;
  PrinterFaults faults_;
  int texts_ = 0;
  int pages_ = 0;
  int ends_ = 0;
  bool jobStarted_ = false;
};

class FakePrinters : public platform::Printers {
 public:
  std::vector<std::u16string> names{u"Impresora A4", u"Impresora Recibos"};
  std::u16string defaultName = u"Impresora A4";  // "": there is none
  bool listFails = false;
  PrinterFaults faults;                                                      // of printers opened from now on
  std::map<std::u16string, std::vector<std::u16string>, std::less<>> fonts;  // by printer
  // By printer and code. What a printer has under 0 it makes of any paper without a code.
  std::map<std::u16string, std::map<std::int16_t, platform::PageSize>, std::less<>> papers;
  std::vector<platform::Paper> papersAsked;

  FakePrinters() : log_(&ownLog_) {}
  explicit FakePrinters(std::string& log) : log_(&log) {}
  FakePrinters(const FakePrinters&) = delete;
  FakePrinters& operator=(const FakePrinters&) = delete;

  [[nodiscard]] const std::string& Log() const { return *log_; }

  [[nodiscard]] std::vector<std::u16string> DeviceNames() override {
    if (listFails) throw runtime::RuntimeError(runtime::ErrorNumber::PrinterError);
    return names;
  }
  [[nodiscard]] std::unique_ptr<platform::PrinterSurface> Open(std::u16string_view deviceName) override {
    CheckInstalled(deviceName);
    return std::make_unique<RecordingPrinter>(deviceName, faults, *log_);
  }
  [[nodiscard]] std::unique_ptr<platform::PrinterSurface> OpenDefault() override { return Open(defaultName); }

  [[nodiscard]] std::vector<std::u16string> FontNames(std::u16string_view deviceName) override {
    CheckInstalled(deviceName);
    const auto found = fonts.find(deviceName);
    return found == fonts.end() ? std::vector<std::u16string>{} : found->second;
  }
  [[nodiscard]] std::vector<std::int16_t> PaperCodes(std::u16string_view deviceName) override {
    CheckInstalled(deviceName);
    std::vector<std::int16_t> codes;
    for (const auto& [code, page] : papers[std::u16string(deviceName)])
      if (code != 0) codes.push_back(code);
    return codes;
  }
  [[nodiscard]] std::optional<platform::PageSize> PageOf(std::u16string_view deviceName,
                                                         const platform::Paper& paper) override {
    CheckInstalled(deviceName);
    papersAsked.push_back(paper);
    const auto& known = papers[std::u16string(deviceName)];
    const auto found = known.find(paper.code);
    return found == known.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  void CheckInstalled(std::u16string_view deviceName) const {
    if (std::find(names.begin(), names.end(), deviceName) == names.end())
      throw runtime::RuntimeError(runtime::ErrorNumber::PrinterError);
  }

  std::string ownLog_;
  std::string* log_;
};

}  // namespace qm::fakes
