#include "proof/Playing.h"

#include <windows.h>

#include <algorithm>
#include <stdexcept>

#include "HostObjects.h"
#include "com/Bstr.h"
#include "com/Create.h"
#include "com/Guard.h"
#include "harness/ProcessWindows.h"
#include "proof/Scene.h"

namespace recoveryui::proof {
namespace {

constexpr DWORD kPatient = 10'000, kImpatient = 150;

// The faults of one playing, on both sides of the border.
class Order {
public:
    explicit Order(const Fault& fault) : fault_(fault) {
        com::Check(com::Create(L"Tovarin.CallJournal", journal_));
        com::Check(journal_->Clear());
        OutwardCalls::Order(fault);
        if (fault.outside == Outside::Host && fault.nth > 0)
            com::Check(journal_->FailCall(com::Bstr(L"").Get(), com::Bstr(L"").Get(), fault.nth, E_FAIL,
                                          !fault.lasting));
    }
    ~Order() { End(); }
    void End() {
        if (!std::exchange(isOn_, false)) return;
        OutwardCalls::Stop();
        journal_->ClearFaults();
        com::Bstr text;
        journal_->GetText(text.Put());
        std::wstring all = text.Text();
        for (size_t end; (end = all.find(L'\n')) != all.npos; all.erase(0, end + 1))
            hostCalls_.push_back(test::Utf8(all.substr(0, std::min(end, all.find(L'(')))));
        journal_->Clear();
    }
    void Lift() {
        OutwardCalls::Lift();
        journal_->ClearFaults();
    }
    // The host's calls by name.
    const std::vector<std::string>& HostCalls() const { return hostCalls_; }
    bool HasFailed() const {
        return fault_.outside == Outside::Host ? static_cast<long>(hostCalls_.size()) >= fault_.nth
                                               : OutwardCalls::HasFailed();
    }
    std::string Failed() const {
        if (!HasFailed()) return "nothing";
        return fault_.outside == Outside::Host ? hostCalls_[static_cast<size_t>(fault_.nth) - 1]
                                               : OutwardCalls::Failed();
    }

private:
    Fault fault_;
    com::Ptr<ICallJournal> journal_;
    bool isOn_ = true;
    std::vector<std::string> hostCalls_;
};

}  // namespace

// Once for the states at which a user may stop, and once for the calls, among which asking for the states
// would be counted.
Rehearsal::Rehearsal(const Journey& journey) : journey_(journey) {
    for (const bool marking : {true, false}) {
        const auto stage = journey_.make();
        if (marking) stage->MarkStates();
        Order order({});
        Actor actor(kPatient, [] {});
        stage->Perform(actor);
        order.End();
        if (!actor.GaveUp().empty())
            throw std::runtime_error("the journey itself does not work: " + actor.GaveUp());
        if (!stage->IsDone()) throw std::runtime_error("the journey itself does not come to its end");
        stage->Mark();
        if (marking) marks_ = stage->Marks();
        for (const Outside outside : {Outside::Memory, Outside::Platform})
            calls_[static_cast<size_t>(outside)] = OutwardCalls::Calls(outside);
        calls_[static_cast<size_t>(Outside::Host)] = static_cast<long>(order.HostCalls().size());
    }
}

Playing Rehearsal::Play(const Fault& fault) {
    Playing playing = PlayOnce(fault, kImpatient);
    // What the platform keeps from the first time on, such as the looks of a message box, is kept once.
    for (int again = 0; again < 2 && !playing.left.empty(); ++again) playing = PlayOnce(fault, kImpatient);
    // Where nothing failed, the machine was only slow.
    if (!playing.hasFailed && !playing.isDone) playing = PlayOnce(fault, kPatient);
    if (!playing.left.empty()) playing.problems.push_back("left behind: " + playing.left);
    return playing;
}

Playing Rehearsal::PlayOnce(const Fault& fault, unsigned patience) {
    Playing playing;
    test::RestartWatchdog();
    test::RunPendingMessages();
    Counts before = Counts::Take();
    // Nothing may live between two playings.
    before.others["live component"] = before.others["live stand-ins"] = 0;
    {
        const auto stage = journey_.make();
        Order order(fault);
        Actor actor(patience, [&] { order.Lift(); });
        stage->Perform(actor);
        order.End();
        playing.hasFailed = order.HasFailed();
        playing.failed = order.Failed();
        playing.isDone = stage->IsDone();
        playing.problems = actor.Problems();
        const std::wstring state = stage->State();
        playing.problems.insert(playing.problems.end(), stage->Broken().begin(), stage->Broken().end());
        // The page leaves out a text that cannot be read, and shows that there is none; Finish passes over a
        // library that cannot be reached, and tells of one that cannot be written.
        const std::string journey = journey_.name;
        const bool hasLess = ((journey == "edit-popup" || journey == "manager-wizard") &&
                              playing.failed == "PopUpRecoveryTrigger.GetWindowText") ||
                             (journey == "wizard-error" && fault.outside != Outside::Memory &&
                              marks_.back().starts_with(state));
        if (stage->IsDone() && state != marks_.back() && !hasLess)
            playing.problems.push_back("reported success, but the outcome is another one:\n" +
                                       test::Utf8(state));
        if (!stage->IsDone() && std::find(marks_.begin(), marks_.end(), state) == marks_.end())
            playing.problems.push_back("neither the old nor the new state:\n" + test::Utf8(state));
        if (!playing.hasFailed && !playing.isDone)
            playing.problems.push_back("nothing failed, and yet: " + actor.GaveUp());
    }
    test::RunPendingMessages();
    const Counts after = Counts::Take();
    if (!(after == before))
        playing.left = after.Against(before) + OutwardCalls::Leaks() + test::WindowsLeft();
    return playing;
}

}  // namespace recoveryui::proof
