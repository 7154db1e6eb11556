#include "platform/text_batches.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>

namespace qm::platform {
namespace {

using Order = std::vector<std::size_t>;

// The texts placed so far, in the cells of a grid over the page. It tells the last batch that a new text
// must not be drawn before.
class PlacedTexts {
 public:
  PlacedTexts(const std::vector<TextBox>& texts, const Order& members) : texts_(texts) {
    left_ = top_ = INT32_MAX;
    std::int64_t right = INT32_MIN;
    std::int64_t bottom = INT32_MIN;
    for (const std::size_t i : members) {
      left_ = std::min<std::int64_t>(left_, texts[i].left);
      top_ = std::min<std::int64_t>(top_, texts[i].top);
      right = std::max<std::int64_t>(right, texts[i].right);
      bottom = std::max<std::int64_t>(bottom, texts[i].bottom);
    }
    const auto wanted = static_cast<int>(std::sqrt(static_cast<double>(members.size())));
    side_ = std::clamp(wanted, 1, kMostCellsPerSide);
    cellWidth_ = std::max<std::int64_t>(1, (right - left_) / side_ + 1);
    cellHeight_ = std::max<std::int64_t>(1, (bottom - top_) / side_ + 1);
    cells_.resize(static_cast<std::size_t>(side_) * static_cast<std::size_t>(side_));
  }

  [[nodiscard]] int LastBatchUnder(const TextBox& box) {
    int last = 0;
    ForEachCell(box, [&](const Cell& cell) { last = std::max(last, LastBatchUnder(box, cell, last)); });
    return last;
  }

  void Place(std::size_t index, int batch) {
    ForEachCell(texts_[index], [&](Cell& cell) {
      cell.lastBatch = std::max(cell.lastBatch, batch);
      if (cell.placed.size() < kMostTextsPerCell) cell.placed.push_back({index, batch});
    });
  }

 private:
  struct Placed {
    std::size_t index;
    int batch;
  };
  struct Cell {
    std::vector<Placed> placed;
    int lastBatch = 0;
  };
  static constexpr int kMostCellsPerSide = 64;
  // A fuller cell counts as one text that covers it: never a wrong order, at worst one group more.
  static constexpr std::size_t kMostTextsPerCell = 24;

  [[nodiscard]] int LastBatchUnder(const TextBox& box, const Cell& cell, int known) const {
    if (cell.lastBatch <= known || cell.placed.size() >= kMostTextsPerCell) return cell.lastBatch;
    for (const Placed& placed : cell.placed)
      if (placed.batch > known && box.Overlaps(texts_[placed.index])) known = placed.batch;
    return known;
  }

  template <typename Action>
  void ForEachCell(const TextBox& box, const Action& action) {
    const auto cellAt = [this](std::int64_t distance, std::int64_t cellSize) {
      return static_cast<int>(std::clamp<std::int64_t>(distance / cellSize, 0, side_ - 1));
    };
    const int lastColumn = cellAt(box.right - left_, cellWidth_);
    const int lastRow = cellAt(box.bottom - top_, cellHeight_);
    for (int row = cellAt(box.top - top_, cellHeight_); row <= lastRow; ++row)
      for (int column = cellAt(box.left - left_, cellWidth_); column <= lastColumn; ++column)
        action(cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(side_) +
                      static_cast<std::size_t>(column)]);
  }

  const std::vector<TextBox>& texts_;
  std::int64_t left_ = 0;
  std::int64_t top_ = 0;
  std::int64_t cellWidth_ = 1;
  std::int64_t cellHeight_ = 1;
  int side_ = 1;
  std::vector<Cell> cells_;
};

// Each text joins the first batch of its key that does not come before a batch with a text under it, or
// begins a new one. Members of a batch stay in the order in which they came.
std::vector<Order> Batches(const std::vector<TextBox>& texts, const Order& members, int TextBox::*key) {
  PlacedTexts placed(texts, members);
  std::vector<Order> batches;
  std::unordered_map<int, std::vector<int>> batchesOfKey;  // ascending
  for (const std::size_t index : members) {
    std::vector<int>& candidates = batchesOfKey[texts[index].*key];
    const int earliest = placed.LastBatchUnder(texts[index]);
    const auto found = std::lower_bound(candidates.begin(), candidates.end(), earliest);
    int batch = 0;
    if (found != candidates.end()) {
      batch = *found;
    } else {
      batch = static_cast<int>(batches.size());
      batches.emplace_back();
      candidates.push_back(batch);
    }
    batches[static_cast<std::size_t>(batch)].push_back(index);
    placed.Place(index, batch);
  }
  return batches;
}

}  // namespace

std::vector<std::size_t> DrawingOrder(const std::vector<TextBox>& texts) {
  Order all(texts.size());
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
  Order order;
  order.reserve(texts.size());
  for (const Order& ofFace : Batches(texts, all, &TextBox::face))
    for (const Order& ofFont : Batches(texts, ofFace, &TextBox::font))
      order.insert(order.end(), ofFont.begin(), ofFont.end());
  return order;
}

}  // namespace qm::platform
