// The tags of menu and toolbar items.
#pragma once

namespace sonavel {

/// The tag of an item that has none.
inline constexpr int noTag = -1;

} // namespace sonavel
