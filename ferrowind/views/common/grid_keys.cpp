#include "ferrowind/views/common/grid_keys.h"

namespace ferrowind {
namespace {

void Save(const platform::GridKeyList& keys, KeyStore& store) {
  store.clear();
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
  Save(grid.SortKeys(), sort_store);
  Save(grid.GroupKeys(), group_store);
}

void RestoreGridKeys(platform::Grid& grid, const KeyStore& sort_store, const KeyStore& group_store) {
  Restore(sort_store, grid.SortKeys());
  Restore(group_store, grid.GroupKeys());
  grid.Refresh(true);
}

}  // namespace ferrowind
