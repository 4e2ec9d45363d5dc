#pragma once

#include "outlook/item.h"

namespace rf::outlook {

class MailItem : public Item {
public:
    using Item::Item;

    [[nodiscard]] Text to(Where where = Where::current()) const { return object().get({u"To", where}).text(where); }
    void setTo(TextView addresses, Where where = Where::current()) const { object().put({u"To", where}, addresses); }
};

} // namespace rf::outlook
