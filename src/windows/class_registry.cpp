#include "windows/class_registry.h"

#include "windows/com_error.h"

namespace rf::native {

using automation::Object;
using automation::Where;
using com::ComPtr;

namespace {

HRESULT classId(const Text& className, CLSID& id)
{
    return className.starts_with(u'{') ? CLSIDFromString(wide(className), &id) : CLSIDFromProgID(wide(className), &id);
}

HRESULT findRunning(const Text& className, ComPtr<IUnknown>& found)
{
    CLSID id;
    const HRESULT status = classId(className, id);
    return FAILED(status) ? status : GetActiveObject(id, nullptr, found.put());
}

HRESULT createNew(const Text& className, ComPtr<IUnknown>& made)
{
    CLSID id;
    if (const HRESULT status = classId(className, id); FAILED(status))
        return status;
    ComPtr<IDispatch> object;
    const HRESULT status
        = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, object.putVoid());
    made = object;
    return status;
}

HRESULT bindName(const Text& displayName, ComPtr<IUnknown>& bound)
{
    ComPtr<IDispatch> object;
    const HRESULT status = CoGetObject(wide(displayName), nullptr, IID_IDispatch, object.putVoid());
    bound = object;
    return status;
}

/// However an object fails to come, the caller hears the one classic number for it.
Object obtained(com::Bridge& bridge, HRESULT status, const ComPtr<IUnknown>& object, TextView name, Where where)
{
    if (SUCCEEDED(status) && object)
        return Object{bridge.importObject(object.get())};
    throw automation::Error{error_number::cannotCreateObject,
        {Text{errorDescription(error_number::cannotCreateObject)}, Text{name}, {}}, where};
}

} // namespace

Object ComClassRegistry::running(TextView className, Where where)
{
    ComPtr<IUnknown> object;
    const HRESULT status = findRunning(Text{className}, object);
    return obtained(*bridge_, status, object, className, where);
}

Object ComClassRegistry::create(TextView className, Where where)
{
    ComPtr<IUnknown> object;
    const HRESULT status = createNew(Text{className}, object);
    return obtained(*bridge_, status, object, className, where);
}

Object ComClassRegistry::bind(TextView displayName, Where where)
{
    ComPtr<IUnknown> object;
    const HRESULT status = bindName(Text{displayName}, object);
    return obtained(*bridge_, status, object, displayName, where);
}

} // namespace rf::native
