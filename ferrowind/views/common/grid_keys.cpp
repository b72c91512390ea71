#include "ferrowind/views/common/grid_keys.h"

namespace ferrowind {
namespace {

void Save(const platform::GridKeyList& keys, KeyStore& store) {
  for (std::int32_t i = 1; i <= keys.Count(); ++i) store.push_back(keys.Item(i));
}

// Last first, by intention: each key goes to its recorded position whatever is there already.
void Restore(const KeyStore& store, platform::GridKeyList& keys) {
  for (auto key = store.rbegin(); key != store.rend(); ++key) {
    keys.Add((*key)->ColIndex, (*key)->SortOrder, (*key)->Index);
  }
}

}  // namespace

void SaveGridKeys(platform::Grid& grid, KeyStore& sort_store, KeyStore& group_store) {
  // Both first: a grid whose keys cannot be read leaves none of a former reload behind.
  sort_store.clear();
  group_store.clear();
  Save(grid.SortKeys(), sort_store);
  Save(grid.GroupKeys(), group_store);
}

void RestoreGridKeys(platform::Grid& grid, const KeyStore& sort_store, const KeyStore& group_store) {
  Restore(sort_store, grid.SortKeys());
  Restore(group_store, grid.GroupKeys());
  grid.Refresh(true);
}

}  // namespace ferrowind
