#include "richtext/rtf/GroupState.h"

namespace richtext::rtf {

void GroupStack::Push() {
  ++depth_;
  if (Skipping() || !HasOwnState()) return;
  const GroupState copy = states_.back();
  states_.push_back(copy);
}

void GroupStack::Pop() {
  if (depth_ == 0) return;
  if (skippedDepth_ == depth_) skippedDepth_ = 0;
  if (states_.size() == depth_ + 1) states_.pop_back();
  --depth_;
}

}  // namespace richtext::rtf
