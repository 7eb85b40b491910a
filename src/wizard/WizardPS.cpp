#include "wizard/WizardPS.h"

#include "model/ScenarioReading.h"
#include "resources/ids.h"
#include "ui/Strings.h"
#include "wizard/CrashTriggerPP.h"
#include "wizard/ObjectPropsPP.h"
#include "wizard/OperationClickPP.h"
#include "wizard/OperationFuncPP.h"
#include "wizard/OperationListPP.h"
#include "wizard/ProcessCtrlActionPP.h"
#include "wizard/ScenDescriptionPP.h"
#include "wizard/SelectErrorPP.h"
#include "wizard/SelectObjectPP.h"
#include "wizard/SelectOperationPP.h"
#include "wizard/SelectPopupPP.h"
#include "wizard/SelectScenPP.h"
#include "wizard/SummaryPP.h"
#include "wizard/TestFlowPP.h"
#include "wizard/WelcomePP.h"

namespace recoveryui::wizard {
namespace {

constexpr int kTitlePoints = 10;
constexpr int kPointsPerInch = 72;

// The walk ends at the first element that is no operation; what came before counts.
void ReadOperations(IRecoveryScenario& scenario, std::vector<com::Ptr<IRecoveryAction>>& operations) {
    std::vector<com::Ptr<IUnknown>> elements;
    if (FAILED(model::ReadOperationElements(scenario, elements))) return;
    for (const auto& element : elements) {
        auto operation = com::Query<IRecoveryAction>(element.Get());
        if (!operation) return;
        operations.push_back(std::move(operation));
    }
}

}  // namespace

WizardPS::WizardPS() : PropertySheet(Kind::Wizard, ui::LoadText(IDS_WIZARD_TITLE)) {
    AddPage(std::make_unique<WelcomePP>(*this));
    AddPage(std::make_unique<SelectScenPP>(*this));
    AddPage(std::make_unique<SelectPopupPP>(*this));
    AddPage(std::make_unique<SelectObjectPP>(*this));
    AddPage(std::make_unique<ObjectPropsPP>(*this));
    AddPage(std::make_unique<SelectErrorPP>(*this));
    AddPage(std::make_unique<CrashTriggerPP>(*this));
    AddPage(std::make_unique<OperationListPP>(*this));
    AddPage(std::make_unique<SelectOperationPP>(*this));
    AddPage(std::make_unique<OperationClickPP>(*this));
    AddPage(std::make_unique<OperationFuncPP>(*this));
    AddPage(std::make_unique<ProcessCtrlActionPP>(*this));
    AddPage(std::make_unique<TestFlowPP>(*this));
    AddPage(std::make_unique<ScenDescriptionPP>(*this));
    AddPage(std::make_unique<SummaryPP>(*this));
}

HFONT WizardPS::TitleFont(HWND page, int dpi) {
    ui::Font& font = titleFonts_[dpi];
    LOGFONTW look{};
    if (font ||
        !GetObjectW(reinterpret_cast<HFONT>(SendMessageW(page, WM_GETFONT, 0, 0)), sizeof look, &look))
        return font.Get();
    look.lfHeight = -MulDiv(kTitlePoints, dpi, kPointsPerInch);
    look.lfWeight = FW_BOLD;
    font = ui::Font(CreateFontIndirectW(&look));
    return font.Get();
}

HBITMAP WizardPS::Picture(int id, SIZE size) {
    ui::Bitmap& picture = pictures_[{id, size.cy}];
    if (!picture) picture = loader_.Load(id, size);
    return picture.Get();
}

bool WizardPS::Run(HWND owner) {
    // However it ends, but not with Finish: the edited scenario is as it was.
    try {
        if (ShowModal(owner)) return true;
    } catch (...) {
        state_.originalIdentification.Restore();
        throw;
    }
    state_.originalIdentification.Restore();
    return false;
}

HRESULT WizardPS::Load(IRecoveryScenario* scenario, std::wstring name) {
    state_.scenario = scenario;
    com::Ptr<IUnknown> trigger;
    if (FAILED(scenario->GetTrigger(trigger.GetAddressOf()))) return E_FAIL;
    state_.trigger = com::Query<IRecoveryTrigger>(trigger.Get());
    if (!state_.trigger) return E_FAIL;
    ReadOperations(*scenario, state_.operations);
    if (FAILED(scenario->GetPostRecoveryOption(&state_.postRecoveryOption))) return E_FAIL;
    state_.name = std::move(name);
    com::Bstr description;
    // Finish would write an unread one back as empty.
    if (FAILED(scenario->GetDescription(description.Put()))) return E_FAIL;
    state_.description = description.Text();
    return S_OK;
}

}  // namespace recoveryui::wizard
