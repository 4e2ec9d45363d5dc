#pragma once

#include "outlook/constants.h"
#include "outlook/proxy.h"

namespace rf::outlook {

/// The host's own way to talk to the user.
class Assistant : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] bool visible(Where where = Where::current()) const
    {
        return object().get({u"Visible", where}).boolean(where);
    }
    void setVisible(bool visible, Where where = Where::current()) const { object().put({u"Visible", where}, visible); }
    /// Shows a message, waits, and answers with the number of the button: 1 OK, 2 Cancel, 6 Yes, 7 No. Events go on
    /// meanwhile. The first button is the default, and the message looks as the assistant likes it.
    std::int32_t doAlert(
        TextView title, TextView text, AlertButtons buttons, AlertIcon icon, Where where = Where::current()) const
    {
        return object()
            .call({u"DoAlert", where}, title, text, code(buttons), code(icon), code(AlertDefault::First),
                code(AlertCancel::Default), false)
            .integer32(where);
    }
};

} // namespace rf::outlook
