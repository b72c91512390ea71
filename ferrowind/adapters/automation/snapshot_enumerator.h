#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "ferrowind/adapters/automation/com_object.h"

namespace ferrowind::automation {

/// Enumerates the elements that there were when it was made, for one of the platform's interfaces of
/// enumerators. An `Element` is made from what is kept of it each time that a host asks, by
/// `Kept::GiveTo(Element&)`, which may fail with an HRESULT.
template <typename Enumerator, typename Element, typename Kept>
class SnapshotEnumerator : public ComObject<Enumerator> {
 public:
  using Snapshot = std::shared_ptr<const std::vector<Kept>>;

  /// `snapshot` is not null; clones share it.
  explicit SnapshotEnumerator(Snapshot snapshot, std::size_t next = 0)
      : snapshot_(std::move(snapshot)), next_(next) {}

  HRESULT STDMETHODCALLTYPE Next(ULONG count, Element* elements, ULONG* given) override {
    if (elements == nullptr || (given == nullptr && count > 1)) return E_POINTER;
    ULONG done = 0;
    HRESULT outcome = S_OK;
    while (done < count && next_ < snapshot_->size() && SUCCEEDED(outcome)) {
      outcome = (*snapshot_)[next_].GiveTo(elements[done]);
      if (FAILED(outcome)) break;
      ++next_;
      ++done;
    }
    if (given != nullptr) *given = done;
    if (FAILED(outcome) && done == 0) return outcome;
    return done == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    const std::size_t left = snapshot_->size() - next_;
    next_ += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    next_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(Enumerator** clone) override {
    if (clone == nullptr) return E_POINTER;
    *clone = new (std::nothrow) SnapshotEnumerator(snapshot_, next_);
    return *clone != nullptr ? S_OK : E_OUTOFMEMORY;
  }

 private:
  Snapshot snapshot_;
  std::size_t next_;
};

}  // namespace ferrowind::automation
