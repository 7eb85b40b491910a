#include "objects/Journal.h"

#include <algorithm>

namespace tovarin {

Journal& Journal::Instance() {
    // Never destroyed: at process exit the listeners' modules may be gone already.
    static Journal& journal = *new Journal;
    return journal;
}

void Journal::AddListener(IJournalListener* listener) {
    const std::lock_guard lock(mutex_);
    listeners_.emplace_back(listener);
    AddInterest();
}

bool Journal::RemoveListener(IJournalListener* listener) {
    com::Ptr<IJournalListener> removed;  // released after the lock
    const std::lock_guard lock(mutex_);
    const auto found = std::find_if(listeners_.begin(), listeners_.end(),
                                    [&](const auto& registered) { return registered.Get() == listener; });
    if (found == listeners_.end()) return false;
    removed = std::move(*found);
    listeners_.erase(found);
    RemoveInterest();
    return true;
}

void Journal::ForwardTo(ICallRecorder* recorder) {
    com::Ptr<ICallRecorder> before(recorder);
    const std::lock_guard lock(mutex_);
    if (recorder && !recorder_) AddInterest();
    if (!recorder && recorder_) RemoveInterest();
    recorder_.Swap(before);
    hasFaults_ = recorder_ || !faults_.empty();
}

com::Ptr<ICallRecorder> Journal::Recorder() const {
    const std::lock_guard lock(mutex_);
    return recorder_;
}

void Journal::Add(const JournalEntry& entry) {
    if (const auto recorder = Recorder()) {
        recorder->Record(com::Bstr(entry.object).Get(), com::Bstr(entry.operation).Get(),
                         com::Bstr(entry.arguments).Get(), com::Bstr(entry.result).Get());
        return;
    }
    std::vector<com::Ptr<IJournalListener>> listeners;
    {
        const std::lock_guard lock(mutex_);
        listeners = listeners_;
        entries_.push_back(entry);
        if (entries_.size() > kMostEntries) entries_.pop_front();
    }
    if (listeners.empty()) return;
    const com::Bstr object(entry.object), operation(entry.operation), arguments(entry.arguments),
        result(entry.result);
    for (const auto& listener : listeners)
        listener->OnCall(object.Get(), operation.Get(), arguments.Get(), result.Get());
}

std::wstring Journal::Text() const {
    const std::lock_guard lock(mutex_);
    std::wstring text;
    for (const JournalEntry& entry : entries_) {
        text.append(entry.object).append(1, L'.').append(entry.operation).append(1, L'(');
        text.append(entry.arguments).append(L") -> ").append(entry.result).append(1, L'\n');
    }
    return text;
}

void Journal::Clear() {
    const std::lock_guard lock(mutex_);
    entries_.clear();
}

void Journal::FailCall(std::wstring object, std::wstring operation, long nth, HRESULT code, long times) {
    const std::lock_guard lock(mutex_);
    faults_.push_back(
        {std::move(object), std::move(operation), std::max(nth, 1L) - 1, code, std::max(times, 0L)});
    hasFaults_ = true;
}

void Journal::ClearFaults() {
    const std::lock_guard lock(mutex_);
    faults_.clear();
    hasFaults_ = recorder_ != nullptr;
}

std::optional<HRESULT> Journal::TakeFault(const wchar_t* object, const wchar_t* operation) noexcept {
    if (!hasFaults_.load(std::memory_order_relaxed)) return std::nullopt;
    if (const auto recorder = Recorder()) {
        HRESULT code = S_OK;
        const HRESULT hr = com::Guarded(
            [&] { return recorder->TakeFault(com::Bstr(object).Get(), com::Bstr(operation).Get(), &code); });
        return hr == S_OK ? std::optional(code) : std::nullopt;
    }
    const std::lock_guard lock(mutex_);
    std::optional<HRESULT> code;
    for (auto fault = faults_.begin(); fault != faults_.end();) {
        const bool matches = (fault->object.empty() || fault->object == object) &&
                             (fault->operation.empty() || fault->operation == operation);
        if (!matches) {
            ++fault;
        } else if (fault->callsBefore > 0) {
            --fault->callsBefore;
            ++fault;
        } else {
            if (!code) code = fault->code;
            if (fault->left == 1) {
                fault = faults_.erase(fault);
            } else {
                if (fault->left > 1) --fault->left;
                ++fault;
            }
        }
    }
    hasFaults_ = !faults_.empty();
    return code;
}

HRESULT JournalCall::Result(HRESULT hr) noexcept {
    if (recording_) {
        Note([&] {
            std::wstring result = DescribeResult(hr);
            if (!given_.empty()) result += L": " + given_;
            Journal::Instance().Add({object_, operation_, std::move(arguments_), std::move(result)});
        });
    }
    return hr;
}

}  // namespace tovarin
