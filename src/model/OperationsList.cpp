#include "model/OperationsList.h"

#include "com/SafeArray.h"
#include "model/FileLocator.h"
#include "model/KeyNames.h"
#include "model/Kinds.h"
#include "model/OperationRows.h"
#include "resources/ids.h"
#include "ui/Strings.h"

namespace recoveryui::model {
namespace {

constexpr std::int32_t kUnknownKind = -1;
enum Column { kTypeColumn, kDetailsColumn };

wchar_t CharacterOf(std::uint16_t key) {
    constexpr UINT kDeadKey = 0x80000000;
    const UINT character = MapVirtualKeyW(key, MAPVK_VK_TO_CHAR);
    return character & kDeadKey ? L'\0' : static_cast<wchar_t>(character);
}

void DescribeClick(IObjectAccessorRecoveryAction* click, OperationDescription& description) {
    com::CVtlSafeArray<VARIANT> arguments;
    com::Variant first;
    if (!click || FAILED(click->GetMethodArguments(arguments.Put())) || FAILED(arguments.Verify()) ||
        arguments.Count() == 0 || FAILED(arguments.GetElement(arguments.LowerBound(), &first)))
        return;
    if (first.Type() == VT_BSTR) description.label = first.Text();
}

void DescribeCall(IFunctionCallRecoveryAction* call, IObjectRack* rack, OperationDescription& description) {
    com::Bstr library, function;
    if (!call) return;
    if (SUCCEEDED(call->GetLibraryPath(library.Put()))) description.library = FullPath(rack, library.Text());
    if (SUCCEEDED(call->GetFunctionName(function.Put()))) description.function = function.Text();
}

void DescribeProcesses(IProcessControlRecoveryAction* processes, OperationDescription& description) {
    com::CVtlSafeArray<BSTR> names;
    if (!processes || FAILED(processes->GetProcessNames(names.Put())) || FAILED(names.Verify())) return;
    (void)names.ForEach([&](const com::Bstr& name) { description.processes.push_back(name.Text()); });
}

void DescribeKeys(IKeyBoardSimulatorRecoveryAction* keyboard, OperationDescription& description) {
    com::CVtlSafeArray<unsigned long> entries;
    if (!keyboard || FAILED(keyboard->GetKeySequence(entries.Put())) || FAILED(entries.Verify())) return;
    std::vector<std::uint32_t> sequence;
    (void)entries.ForEach([&](unsigned long entry) { sequence.push_back(entry); });
    description.keyNames = KeyNames(sequence, ui::LoadText, CharacterOf);
}

OperationDescription Describe(IRecoveryAction* operation, IObjectRack* rack) {
    OperationDescription description;
    long kind = 0;
    description.kind = SUCCEEDED(operation->GetOperationKind(&kind)) ? kind : kUnknownKind;
    const auto known = OperationKindFrom(description.kind);
    if (!known) return description;
    switch (*known) {
        case OperationKind::ClickButton:
            DescribeClick(com::Query<IObjectAccessorRecoveryAction>(operation).Get(), description);
            break;
        case OperationKind::FunctionCall:
            DescribeCall(com::Query<IFunctionCallRecoveryAction>(operation).Get(), rack, description);
            break;
        case OperationKind::CloseProcesses:
            DescribeProcesses(com::Query<IProcessControlRecoveryAction>(operation).Get(), description);
            break;
        case OperationKind::PressKeys:
            DescribeKeys(com::Query<IKeyBoardSimulatorRecoveryAction>(operation).Get(), description);
            break;
    }
    return description;
}

}  // namespace

void SetUpOperationsList(const ui::ListView& list) {
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP);
    list.AddColumn(ui::LoadText(IDS_COLUMN_TYPE));
    list.AddColumn(ui::LoadText(IDS_COLUMN_DETAILS));
}

void FillOperationsList(const ui::ListView& list, std::span<const com::Ptr<IRecoveryAction>> operations,
                        bool restart, IObjectRack* rack) {
    std::vector<OperationDescription> descriptions;
    descriptions.reserve(operations.size());
    for (const auto& operation : operations) descriptions.push_back(Describe(operation.Get(), rack));
    const auto rows = OperationRows(descriptions, restart, ui::LoadText);
    {
        const ui::ListView::Filling filling(list);
        list.Clear();
        for (const OperationRow& row : rows)
            list.SetText(list.InsertRow(list.Count(), row.type), kDetailsColumn, row.details);
    }
    rows.empty() ? list.FitColumnToHeader(kTypeColumn) : list.FitColumnToContents(kTypeColumn);
    list.FitColumnToHeader(kDetailsColumn);
}

}  // namespace recoveryui::model
