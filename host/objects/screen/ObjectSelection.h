// Lets the user choose one of the objects under a point.
#pragma once

#include <string>

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class ObjectSelection final
    : public HostObject<ObjectSelection, IObjectSelection, RackClient<ObjectSelection>> {
public:
    static constexpr const wchar_t* kName = L"ObjectSelection";
    static constexpr const wchar_t* kProgId = L"Vantrel.ObjectSelection";

    HRESULT STDMETHODCALLTYPE SetCaption(BSTR caption) noexcept override;
    HRESULT STDMETHODCALLTYPE SetHelpTopic(BSTR topic) noexcept override;
    // Elements without an object are left out; E_INVALIDARG when none is left.
    HRESULT STDMETHODCALLTYPE Choose(SAFEARRAY* candidates, VARIANT* chosen) noexcept override;

private:
    std::wstring caption_;
    std::wstring topic_;
};

}  // namespace tovarin
