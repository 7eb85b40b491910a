// The calls that the component makes on host objects, and the faults that an engineer orders for them.
#pragma once

#include <windows.h>

#include <atomic>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "HostObjects.h"
#include "com/Bstr.h"
#include "com/Guard.h"
#include "com/Ptr.h"
#include "objects/Describe.h"

namespace tovarin {
namespace com = recoveryui::com;

struct JournalEntry {
    std::wstring object;
    std::wstring operation;
    std::wstring arguments;
    std::wstring result;
};

// One for the module. While nobody holds or listens, and no fault is ordered, a call costs two loads.
class Journal {
public:
    static Journal& Instance();

    bool Recording() const noexcept { return interested_.load(std::memory_order_relaxed) > 0; }
    // Somebody wants the calls written down, or no longer does.
    void AddInterest() noexcept { ++interested_; }
    void RemoveInterest() noexcept { --interested_; }
    void AddListener(IJournalListener* listener);
    // False when it was not registered.
    bool RemoveListener(IJournalListener* listener);

    // From now on the calls of this module belong to another module's journal: written down there, failed by
    // the faults ordered there. Null ends it.
    void ForwardTo(ICallRecorder* recorder);

    // Keeps the newest kMostEntries and tells the listeners.
    void Add(const JournalEntry& entry);
    std::wstring Text() const;
    void Clear();

    void FailCall(std::wstring object, std::wstring operation, long nth, HRESULT code, long times);
    void ClearFaults();
    // The code that a call is to answer instead of doing anything.
    std::optional<HRESULT> TakeFault(const wchar_t* object, const wchar_t* operation) noexcept;

    static constexpr size_t kMostEntries = 100'000;

private:
    struct Fault {
        std::wstring object;
        std::wstring operation;
        long callsBefore;
        HRESULT code;
        long left;  // 0: for ever
    };

    com::Ptr<ICallRecorder> Recorder() const;

    mutable std::mutex mutex_;
    std::deque<JournalEntry> entries_;
    std::vector<com::Ptr<IJournalListener>> listeners_;
    std::vector<Fault> faults_;
    com::Ptr<ICallRecorder> recorder_;
    std::atomic<int> interested_{0};
    std::atomic<bool> hasFaults_{false};
};

// One call on a host object:
//     JournalCall call(L"RecoveryScenario", L"SetTrigger", trigger);
//     return call.Answer([&] { trigger_ = trigger; });
class JournalCall {
public:
    template <class... Arguments>
    JournalCall(const wchar_t* object, const wchar_t* operation, const Arguments&... arguments) noexcept
        : object_(object),
          operation_(operation),
          fault_(Journal::Instance().TakeFault(object, operation)),
          recording_(Journal::Instance().Recording()) {
        if (recording_) Note([&] { (Append(arguments_, Describe(arguments)), ...); });
    }
    JournalCall(const JournalCall&) = delete;
    JournalCall& operator=(const JournalCall&) = delete;

    // The ordered fault, or what the body answers. Exceptions become codes.
    template <class Body>
    HRESULT Answer(Body&& body) noexcept {
        return Result(fault_ ? *fault_ : com::Guarded(body));
    }
    // The same for a call with out-arguments: E_POINTER when one is missing; all are cleared before the
    // body runs and written down when it succeeds.
    template <class Body, class... Out>
    HRESULT Give(Body&& body, Out*... outs) noexcept {
        ((outs ? void(*outs = Out{}) : void()), ...);
        if (fault_) return Result(*fault_);
        if (!(outs && ...)) return Result(E_POINTER);
        const HRESULT hr = com::Guarded(body);
        if (recording_ && SUCCEEDED(hr)) Note([&] { (Append(given_, Describe(*outs)), ...); });
        return Result(hr);
    }
    // Writes the line down and hands the code back.
    HRESULT Result(HRESULT hr) noexcept;
    // The code ordered for this call, for a method that answers by hand.
    const std::optional<HRESULT>& Fault() const noexcept { return fault_; }

private:
    // Running out of memory costs the line its words, not the caller its call.
    template <class Body>
    static void Note(Body&& body) noexcept {
        static_cast<void>(com::Guarded([&] { body(); }));
    }
    static void Append(std::wstring& list, const std::wstring& text) {
        if (!list.empty()) list += L", ";
        list += text;
    }

    const wchar_t* object_;
    const wchar_t* operation_;
    std::optional<HRESULT> fault_;
    bool recording_;
    std::wstring arguments_;
    std::wstring given_;
};

}  // namespace tovarin
