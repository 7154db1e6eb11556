#include "designer/win32/tile_cache.h"

#include <algorithm>

namespace qm::designer::win32 {
namespace {

int Floor(LONG pixels) {
  const int value = static_cast<int>(pixels);
  return value >= 0 ? value / TileCache::kSide : -((-value + TileCache::kSide - 1) / TileCache::kSide);
}

}  // namespace

std::pair<TileCache::Place, TileCache::Place> TileCache::Touched(const RECT& area) {
  return {{Floor(area.left), Floor(area.top)}, {Floor(area.right - 1), Floor(area.bottom - 1)}};
}

const Bitmap32* TileCache::Find(Place place) {
  const auto found = tiles_.find(place);
  if (found == tiles_.end()) return nullptr;
  found->second.lastUse = ++uses_;
  return &found->second.bitmap;
}

Bitmap32& TileCache::Add(Place place) {
  const std::uint64_t use = ++uses_;
  if (tiles_.size() >= capacity_) {
    const auto oldest = std::min_element(tiles_.begin(), tiles_.end(), [](const auto& a, const auto& b) {
      return a.second.lastUse < b.second.lastUse;
    });
    auto node = tiles_.extract(oldest);
    node.key() = place;
    node.mapped().lastUse = use;
    return tiles_.insert(std::move(node)).position->second.bitmap;
  }
  return tiles_.emplace(place, Tile{Bitmap32(kSide, kSide), use}).first->second.bitmap;
}

void TileCache::Drop(const RECT& area) {
  std::erase_if(tiles_, [&](const auto& tile) {
    const POINT corner = tile.first.Corner();
    const RECT square{corner.x, corner.y, corner.x + kSide, corner.y + kSide};
    RECT common{};
    return IntersectRect(&common, &square, &area) != FALSE;
  });
}

}  // namespace qm::designer::win32
