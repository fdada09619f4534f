#pragma once

#include "Tools/CleanupListing.h"
#include "Tools/CleanupScope.h"

namespace Tools {

/// What should have gone and is still there.
struct Remainder {
    int count = 0;     ///< of listed entries
    std::string first; ///< the path of one of them
    int error = 0;     ///< the errno that kept it
};

/// What the scope is about in `folder`. What cannot be read is left out.
CleanupListing listEntries(const Folder& folder, const CleanupScope& scope);

/// Removes the listed entries from `folder`, as they were listed: an entry that has become another one since,
/// and an old file that is not old any more, stays. Folders go with all that is in them; no link is followed
/// and no other file system entered.
Remainder removeEntries(const Folder& folder, const CleanupListing& listing, const CleanupScope& scope);

} // namespace Tools
