#pragma once
// Pictures as files of the text "PICTURE 40x30", their size in pixels; anything else is no picture (481).
// What is loaded, scaled and put on the clipboard is written to a log, one operation a line.

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/pictures.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace qm::fakes {

class FakePicture : public platform::Picture {
 public:
  FakePicture(int width, int height) : width_(width), height_(height) {}
  [[nodiscard]] int WidthPixels() const override { return width_; }
  [[nodiscard]] int HeightPixels() const override { return height_; }

 private:
  int width_;
  int height_;
};

class FakePictures : public platform::Pictures {
 public:
  explicit FakePictures(platform::Files& files) : files_(files), log_(&ownLog_) {}
  FakePictures(platform::Files& files, std::string& log) : files_(files), log_(&log) {}
  FakePictures(const FakePictures&) = delete;
  FakePictures& operator=(const FakePictures&) = delete;

  [[nodiscard]] const std::string& Log() const { return *log_; }
  [[nodiscard]] const platform::Picture* Clipboard() const { return clipboard_.get(); }

  [[nodiscard]] std::unique_ptr<platform::Picture> Load(std::u16string_view path) override {
    Write("load " + runtime::ToUtf8(path));
    const auto bytes = files_.Read(path);
    if (!bytes) throw runtime::RuntimeError(runtime::ErrorNumber::FileNotFound);
    return FromBytes(*bytes);
  }

  [[nodiscard]] std::unique_ptr<platform::Picture> Decode(std::string_view bytes) override {
    Write("decode");
    return FromBytes(std::string(bytes));
  }

  [[nodiscard]] std::unique_ptr<platform::Picture> Scaled(const platform::Picture& picture, int widthPixels,
                                                          int heightPixels) override {
    Write("scale " + Size(picture) + " to " + std::to_string(widthPixels) + "x" +
          std::to_string(heightPixels));
    return std::make_unique<FakePicture>(widthPixels, heightPixels);
  }

  [[nodiscard]] std::unique_ptr<platform::Picture> ThroughClipboard(
      const platform::Picture& picture) override {
    Write("clipboard " + Size(picture));
    clipboard_ = std::make_unique<FakePicture>(picture.WidthPixels(), picture.HeightPixels());
    return std::make_unique<FakePicture>(clipboard_->WidthPixels(), clipboard_->HeightPixels());
  }

 private:
  static std::unique_ptr<platform::Picture> FromBytes(const std::string& bytes) {
    int width = 0;
    int height = 0;
    if (std::sscanf(bytes.c_str(), "PICTURE %dx%d", &width, &height) != 2)
      throw runtime::RuntimeError(runtime::ErrorNumber::InvalidPicture);
    return std::make_unique<FakePicture>(width, height);
  }
  static std::string Size(const platform::Picture& picture) {
    return std::to_string(picture.WidthPixels()) + "x" + std::to_string(picture.HeightPixels());
  }
  void Write(std::string_view line) { log_->append(line).append("\n"); }

  platform::Files& files_;
  std::unique_ptr<platform::Picture> clipboard_;
  std::string ownLog_;
  std::string* log_;
};

}  // namespace qm::fakes
