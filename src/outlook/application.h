#pragma once

#include "outlook/assistant.h"
#include "outlook/explorer.h"
#include "outlook/inspector.h"
#include "outlook/name_space.h"

namespace rf::outlook {

/// The host itself.
class Application : public Proxy {
public:
    using Proxy::Proxy;

    /// The whole version, such as "11.0.8169".
    [[nodiscard]] Text version(Where where = Where::current()) const
    {
        return object().get({u"Version", where}).text(where);
    }
    /// The session with the message stores, the only name space that the host has.
    [[nodiscard]] NameSpace getNamespace(Where where = Where::current()) const
    {
        return face<NameSpace>(object().call({u"GetNamespace", where}, u"MAPI"), where);
    }
    [[nodiscard]] Explorers explorers(Where where = Where::current()) const
    {
        return face<Explorers>(object().get({u"Explorers", where}), where);
    }
    /// Empty when the host shows no folder window.
    [[nodiscard]] Explorer activeExplorer(Where where = Where::current()) const
    {
        return face<Explorer>(object().call({u"ActiveExplorer", where}), where);
    }
    [[nodiscard]] Inspectors inspectors(Where where = Where::current()) const
    {
        return face<Inspectors>(object().get({u"Inspectors", where}), where);
    }
    /// Empty when the host shows no item window.
    [[nodiscard]] Inspector activeInspector(Where where = Where::current()) const
    {
        return face<Inspector>(object().call({u"ActiveInspector", where}), where);
    }
    /// The topmost window, of either kind; empty when there is none.
    [[nodiscard]] Window activeWindow(Where where = Where::current()) const
    {
        return face<Window>(object().call({u"ActiveWindow", where}), where);
    }
    [[nodiscard]] Assistant assistant(Where where = Where::current()) const
    {
        return face<Assistant>(object().get({u"Assistant", where}), where);
    }
    /// A new item, unsaved, that will be saved in the default folder of its kind.
    [[nodiscard]] Item createItem(ItemType type, Where where = Where::current()) const
    {
        return face<Item>(object().call({u"CreateItem", where}, code(type)), where);
    }
};

inline Application Folder::application(Where where) const
{
    return face<Application>(object().get({u"Application", where}), where);
}

} // namespace rf::outlook
