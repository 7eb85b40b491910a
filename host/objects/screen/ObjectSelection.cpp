#include "objects/screen/ObjectSelection.h"

#include "objects/screen/SelectionDialog.h"
#include "objects/store/Arrays.h"

namespace tovarin {

HRESULT ObjectSelection::SetCaption(BSTR caption) noexcept {
    return Call(L"SetCaption", caption).Answer([&] { caption_ = com::ViewOf(caption); });
}

HRESULT ObjectSelection::SetHelpTopic(BSTR topic) noexcept {
    return Call(L"SetHelpTopic", topic).Answer([&] { topic_ = com::ViewOf(topic); });
}

HRESULT ObjectSelection::Choose(SAFEARRAY* candidates, VARIANT* chosen) noexcept {
    return Call(L"Choose", candidates)
        .Give(
            [&] {
                std::vector<com::Ptr<IDispatch>> objects;
                std::vector<com::Variant> values;
                com::Check(ReadArray(candidates, values));
                for (const com::Variant& value : values) {
                    if (auto object = com::Query<IDispatch>(value.Object()))
                        objects.push_back(std::move(object));
                }
                if (objects.empty()) return E_INVALIDARG;
                const com::Ptr<IUnknown> self = KeepAlive();
                const com::Ptr<IDispatch> choice = SelectionDialog(objects, caption_, topic_, Rack()).Show();
                if (!choice) return S_FALSE;
                *chosen = com::Variant(choice.Get()).Detach();
                return S_OK;
            },
            chosen);
}

}  // namespace tovarin
