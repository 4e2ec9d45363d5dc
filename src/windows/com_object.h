#pragma once

#include "automation/object.h"
#include "windows/com_bridge.h"

#include <map>
#include <unordered_map>

namespace rf::native::com {

/// Answers, within this process, for the object behind a COM object that the program exported. No proxy carries it
/// to another process.
class ExportedObject : public IUnknown {
public:
    [[nodiscard]] virtual std::shared_ptr<automation::Dispatch> original() const = 0;
};

inline constexpr IID exportedObjectId{0xE4840E01, 0x72BF, 0x4A65, {0xAC, 0xF3, 0x84, 0xC7, 0x3F, 0x68, 0x25, 0xFF}};

class ConnectionPoint;

/// An object of the program as COM sees it. It keeps the object alive; `Bridge::exportObject` makes it.
class ComObject final : public Counted<IDispatch, IConnectionPointContainer, ExportedObject> {
public:
    ComObject(std::shared_ptr<Bridge> bridge, std::shared_ptr<automation::Dispatch> object);
    ~ComObject() override;

    [[nodiscard]] IUnknown* unknown() { return static_cast<IDispatch*>(this); }
    [[nodiscard]] std::shared_ptr<automation::Dispatch> original() const override { return object_; }
    [[nodiscard]] Bridge& bridge() const { return *bridge_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** information) override;
    /// Every name gets an id, which stays its own for this object's life: only a use shows whether there is such a
    /// member.
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(
        REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
        VARIANT* result, EXCEPINFO* told, UINT* wrongArgument) override;

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) override;

private:
    [[nodiscard]] DISPID idOf(TextView name);
    [[nodiscard]] const Text* nameOf(DISPID id) const;

    std::shared_ptr<Bridge> bridge_;
    std::shared_ptr<automation::Dispatch> object_;
    std::unordered_map<Text, DISPID, HashIgnoringCase, EqualIgnoringCase> ids_;
    /// The names by their ids, which count from 1: 0 is the default member, which these objects do not have.
    std::vector<Text> names_;
    std::map<const automation::EventInterface*, std::unique_ptr<ConnectionPoint>> points_;
};

} // namespace rf::native::com
