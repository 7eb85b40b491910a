// The journal as a COM object.
#pragma once

#include "com/Object.h"
#include "objects/Journal.h"

namespace tovarin {

// Its own calls are not written down: they are the engineer's, not the component's.
class CallJournal final : public com::Object<CallJournal, ICallJournal, ICallRecorder> {
public:
    static constexpr const wchar_t* kProgId = L"Tovarin.CallJournal";

    CallJournal();
    ~CallJournal();

    HRESULT STDMETHODCALLTYPE AddListener(IJournalListener* listener) noexcept override;
    HRESULT STDMETHODCALLTYPE RemoveListener(IJournalListener* listener) noexcept override;
    HRESULT STDMETHODCALLTYPE GetText(BSTR* text) noexcept override;
    HRESULT STDMETHODCALLTYPE Clear() noexcept override;
    HRESULT STDMETHODCALLTYPE WriteToFile(BSTR path) noexcept override;
    HRESULT STDMETHODCALLTYPE FailCall(BSTR object, BSTR operation, long nth, HRESULT code,
                                       long times) noexcept override;
    HRESULT STDMETHODCALLTYPE ClearFaults() noexcept override;
    HRESULT STDMETHODCALLTYPE TakeFault(BSTR object, BSTR operation, HRESULT* code) noexcept override;
    HRESULT STDMETHODCALLTYPE Record(BSTR object, BSTR operation, BSTR arguments,
                                     BSTR result) noexcept override;
};

}  // namespace tovarin
