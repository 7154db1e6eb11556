#pragma once
// Drawn squares of the page, kept until something on them changes or others need their room.
// Units: pixels of the page.

#include <cstdint>
#include <map>
#include <utility>

#include "designer/win32/bitmap32.h"

namespace qm::designer::win32 {

class TileCache {
 public:
  static constexpr int kSide = 256;
  static constexpr std::size_t kFewest = 64;  // 16 MB

  struct Place {
    int column;
    int row;
    [[nodiscard]] POINT Corner() const { return {column * kSide, row * kSide}; }
    auto operator<=>(const Place&) const = default;
  };

  // The squares that an area touches, from the top-left one to the bottom-right one.
  static std::pair<Place, Place> Touched(const RECT& area);

  // How many are kept at least those on the screen.
  void SetCapacity(std::size_t tiles) { capacity_ = tiles > kFewest ? tiles : kFewest; }
  [[nodiscard]] std::size_t Capacity() const { return capacity_; }
  [[nodiscard]] std::size_t Count() const { return tiles_.size(); }

  [[nodiscard]] const Bitmap32* Find(Place place);
  // Room for a square that is not there: a new one, or that of the one unused for longest.
  [[nodiscard]] Bitmap32& Add(Place place);
  void Drop(Place place) { tiles_.erase(place); }
  void Drop(const RECT& area);
  void Clear() { tiles_.clear(); }

 private:
  struct Tile {
    Bitmap32 bitmap;
    std::uint64_t lastUse;
  };

  std::map<Place, Tile> tiles_;
  std::size_t capacity_ = kFewest;
  std::uint64_t uses_ = 0;
};

}  // namespace qm::designer::win32
