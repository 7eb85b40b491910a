// Shows the topics of the help folder beside the program.
#pragma once

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class HelpViewer final : public HostObject<HelpViewer, IHelpViewer> {
public:
    static constexpr const wchar_t* kName = L"HelpViewer";

    // The user is told of a topic that is missing or cannot be shown; the call has then done its work.
    // E_INVALIDARG for a name that is no file of the folder.
    HRESULT STDMETHODCALLTYPE ShowTopic(LONG window, BSTR topic) noexcept override;
};

}  // namespace tovarin
