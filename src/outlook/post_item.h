#pragma once

#include "outlook/item.h"

namespace rf::outlook {

/// A note that is kept in a folder for everybody who can read the folder.
class PostItem : public Item {
public:
    using Item::Item;
};

} // namespace rf::outlook
