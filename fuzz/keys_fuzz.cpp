// Key sequences, and the other numbers that an object may answer.
#include <algorithm>

#include "Fuzz.h"
#include "model/Activation.h"
#include "model/KeyNames.h"
#include "model/KeySequence.h"
#include "model/Kinds.h"
#include "model/OperationRows.h"
#include "model/PostRecovery.h"
#include "settings/FrameProtocol.h"
#include "settings/PropertiesPages.h"
#include "wizard/FunctionText.h"
#include "wizard/Summary.h"

namespace recoveryui::fuzz {
namespace {

std::wstring Word(int id) {
    Require(id > 0, "a text has a number");
    return L"w";
}

void Keys(Input input) {
    const auto key = static_cast<std::uint16_t>(input.Number());
    const auto modifiers = input.Byte();
    const auto pressed = model::PressedKeys(model::PressCombination(key, modifiers));
    Require(pressed.size() == 1 + static_cast<std::size_t>(__builtin_popcount(modifiers & 7U)) &&
                pressed.back() == key,
            "the key is pressed last, behind its modifiers");
    Require(model::PressedKeys(model::Press(key)) == std::vector<std::uint16_t>{key},
            "a key is pressed once");
    std::vector<std::uint32_t> sequence;
    while (!input.Empty()) sequence.push_back(input.Number());
    const auto keys = model::PressedKeys(sequence);
    Require(keys.size() <= sequence.size(), "no key is made up");
    const std::wstring names =
        model::KeyNames(sequence, Word, [](std::uint16_t each) { return static_cast<wchar_t>(each); });
    Require(names.size() <= 4 * keys.size(), "a key has one name");
}

void Numbers(Input input) {
    const auto first = static_cast<std::int32_t>(input.Number()), second = input.Byte() - 8;
    for (const std::int32_t value : {first, second}) {
        const int choice = model::ChoiceOf(value);
        Require(choice >= model::kNoChoice && choice < model::kChoiceCount, "a choice is on the page");
        for (const bool restart : {false, true}) {
            const int initial = model::InitialChoice(value, restart);
            const int shown = model::ChoiceOnActivation(initial, restart);
            Require(model::IsOffered(shown, restart) ||
                        (choice == model::kNoChoice && shown == choice && !restart),
                    "only a value without meaning leaves the page without a choice");
        }
        const auto pages = settings::PagesOf(value, input.Byte() % 2 != 0);
        Require(!pages.empty() && pages.size() <= 4, "a properties sheet has pages");
        wizard::PrototypeFor(value);
        settings::TextOfOption(value);
        settings::ShowsRestart(value);
        settings::ErrorToShow(value);

        const std::vector<model::OperationDescription> operations = {{second, L"b"}, {first}, {second}};
        const auto rows = model::OperationRows(operations, true, Word);
        const bool known = model::OperationKindFrom(first) && model::OperationKindFrom(second);
        Require((rows.size() == 4) == known && rows.size() <= 4, "an unknown kind ends the list");
        wizard::BuildSummary({value, {first, second}, true, second}, Word);

        const std::vector<model::ScenarioAssociation> records = {{L"f", L"n", true, value}};
        const auto item = model::ActivationOnReading(first, records);
        const auto stored = model::ActivationToWrite(item, records);
        Require(item == model::ActivationItem::None ||
                    model::ActivationOnReading(
                        stored.enabled,
                        std::vector<model::ScenarioAssociation>{{L"f", L"n", true, stored.mode}}) == item,
                "what the tab writes is what it shows next time");
    }
    const auto bits = input.Byte();
    const auto event = static_cast<settings::FrameEvent>(input.Below(8));
    const settings::FrameFlags flags{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0,
                                     (bits & 16) != 0};
    const auto decision = settings::Decide(event, flags);
    Require(decision.swallow == (decision.box != settings::FrameBox::None), "what is held back is explained");
    Require(!decision.swallow || (flags.forceSORConfiguration && !flags.wasSORConfigured),
            "nothing is held back that is configured");
    Require(!flags.readOnlyMode ||
                (!decision.applyEnabled.value_or(false) && !decision.okEnabled.value_or(false)),
            "nothing is applied where nothing may be written");
}

}  // namespace

void Fuzz(Input input) {
    Keys(input);
    Numbers(input);
}

}  // namespace recoveryui::fuzz
