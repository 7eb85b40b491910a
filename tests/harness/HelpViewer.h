// A host's help viewer that only remembers what it was asked to show. It goes into the rack as "HelpViewer".
#pragma once

#include <string>
#include <utility>

#include "HostInterfaces.h"
#include "com/Bstr.h"
#include "com/Object.h"

namespace recoveryui::test {

class HelpViewer final : public com::Object<HelpViewer, IHelpViewer> {
public:
    HRESULT STDMETHODCALLTYPE ShowTopic(long, BSTR topic) noexcept override {
        topics_ += (topics_.empty() ? L"" : L" ") + std::wstring(com::ViewOf(topic));
        return S_OK;
    }
    // The topics since the last time, with a blank between them.
    std::wstring Take() { return std::exchange(topics_, {}); }

private:
    std::wstring topics_;
};

}  // namespace recoveryui::test
