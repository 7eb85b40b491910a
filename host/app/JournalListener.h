// Takes the calls from whatever thread answered them to the window that shows them.
#pragma once

#include <mutex>
#include <vector>

#include "HostObjects.h"
#include "app/JournalRows.h"
#include "com/Object.h"

namespace tovarin {

class JournalListener final : public recoveryui::com::Object<JournalListener, IJournalListener> {
public:
    // Posts the message once for each batch of calls.
    JournalListener(HWND window, UINT message) : window_(window), message_(message) {}

    HRESULT STDMETHODCALLTYPE OnCall(BSTR object, BSTR operation, BSTR arguments,
                                     BSTR result) noexcept override;
    // What arrived since the last time.
    std::vector<JournalRow> Take();

private:
    const HWND window_;
    const UINT message_;
    std::mutex mutex_;
    std::vector<JournalRow> waiting_;
};

}  // namespace tovarin
