#include "objects/store/RecoveryRepository.h"

#include "objects/store/Arrays.h"
#include "objects/store/ReplayRecoveryScenario.h"
#include "objects/store/StoreFormat.h"

namespace tovarin {
namespace {

// Names that the platform's own file names would not tell apart are equal here too.
std::wstring NameKey(std::wstring_view name) {
    std::wstring key(name);
    CharUpperBuffW(key.data(), static_cast<DWORD>(key.size()));
    return key;
}

class ScenarioEnumerator final : public HostObject<ScenarioEnumerator, IScenarioEnumerator> {
public:
    static constexpr const wchar_t* kName = L"ScenarioEnumerator";

    explicit ScenarioEnumerator(std::vector<std::wstring> names) : names_(std::move(names)) {}

    HRESULT STDMETHODCALLTYPE Next(BSTR* name) noexcept override {
        return Call(L"Next").Give(
            [&] {
                if (next_ == names_.size()) return S_FALSE;
                const HRESULT hr = com::CopyTo(name, names_[next_]);
                if (SUCCEEDED(hr)) ++next_;
                return hr;
            },
            name);
    }
    HRESULT STDMETHODCALLTYPE Reset() noexcept override {
        return Call(L"Reset").Answer([&] { next_ = 0; });
    }

private:
    std::vector<std::wstring> names_;
    size_t next_ = 0;
};

}  // namespace

RecoveryRepository::Scenarios RecoveryRepository::Empty() {
    return Scenarios(&NameKey);
}

RecoveryRepository::RecoveryRepository() : scenarios_(Empty()) {}

HRESULT RecoveryRepository::GetFilePath(BSTR* path) noexcept {
    return Call(L"GetFilePath").Give([&] { return com::CopyTo(path, file_.Path()); }, path);
}

HRESULT RecoveryRepository::GetScenarioEnumerator(IScenarioEnumerator** enumerator) noexcept {
    return Call(L"GetScenarioEnumerator")
        .Give([&] { *enumerator = ScenarioEnumerator::Make(Names()).Detach(); }, enumerator);
}

std::vector<std::wstring> RecoveryRepository::Names() {
    std::vector<std::wstring> names;
    names.reserve(scenarios_.Size());
    for (const auto& entry : scenarios_) names.push_back(entry.name);
    return names;
}

HRESULT RecoveryRepository::GetScenario(BSTR name, IUnknown** scenario) noexcept {
    return Call(L"GetScenario", name)
        .Give(
            [&] {
                auto* entry = scenarios_.Find(com::ViewOf(name));
                if (!entry) return S_OK;
                Item& item = entry->item;
                if (!item.object) item.object = ReplayRecoveryScenario::Make(item.content)->KeepAlive();
                return item.object.CopyTo(scenario);
            },
            scenario);
}

HRESULT RecoveryRepository::Load(BSTR path, VARIANT_BOOL readOnly) noexcept {
    return Call(L"Load", path, readOnly).Answer([&] {
        const std::wstring_view name = com::ViewOf(path);
        if (!name.empty()) return LoadFile(name, readOnly != VARIANT_FALSE);
        if (readOnly) return E_INVALIDARG;
        scenarios_ = Empty();
        file_ = StoreFile();
        return S_OK;
    });
}

HRESULT RecoveryRepository::LoadFile(std::wstring_view path, bool readOnly) {
    StoreFile file = file_;
    std::string bytes;
    const HRESULT hr = file.Open(path, readOnly, bytes);
    if (FAILED(hr)) return hr;
    std::vector<store::NamedScenario> read;
    switch (store::ReadStore(bytes, read)) {
        case store::ReadResult::Read: break;
        case store::ReadResult::Corrupt: return STG_E_DOCFILECORRUPT;
        case store::ReadResult::Newer: return STG_E_OLDDLL;
    }
    Scenarios scenarios = Empty();
    for (store::NamedScenario& named : read) {
        // A merge can leave two of one name; keeping one would lose the other.
        if (!scenarios.Add(named.name, {std::move(named.scenario), nullptr}, false))
            return STG_E_DOCFILECORRUPT;
    }
    scenarios_ = std::move(scenarios);
    file_ = std::move(file);
    return S_OK;
}

HRESULT RecoveryRepository::Save(BSTR path) noexcept {
    return Call(L"Save", path).Answer([&] {
        store::StoreWriter writer;
        if (scenarios_.Size() > store::kMostScenarios) return STG_E_CANTSAVE;
        for (auto& [name, item] : scenarios_) {
            if (item.object) com::Check(WriteRecord(item.object.Get(), item.content));
            if (!store::WithinLimits(name, item.content)) return STG_E_CANTSAVE;
            writer.Add(name, item.content);
        }
        const std::string bytes = writer.Finish();
        return bytes.size() > store::kMostBytes ? STG_E_CANTSAVE : file_.Save(com::ViewOf(path), bytes);
    });
}

HRESULT RecoveryRepository::ScenarioExists(BSTR name, VARIANT_BOOL* exists) noexcept {
    return Call(L"ScenarioExists", name)
        .Give([&] { *exists = scenarios_.Find(com::ViewOf(name)) ? VARIANT_TRUE : VARIANT_FALSE; }, exists);
}

HRESULT RecoveryRepository::AddScenario(IUnknown* scenario, BSTR name, long replace) noexcept {
    return Call(L"AddScenario", scenario, name, replace).Answer([&] {
        Item item{{}, scenario};
        if (!scenario) return E_INVALIDARG;
        const HRESULT hr = WriteRecord(scenario, item.content);
        if (FAILED(hr)) return hr;
        if (!store::WithinLimits(com::ViewOf(name), item.content)) return E_INVALIDARG;
        return scenarios_.Add(com::ViewOf(name), std::move(item), replace != 0) ? S_OK
                                                                                : STG_E_FILEALREADYEXISTS;
    });
}

HRESULT RecoveryRepository::RemoveScenario(BSTR name) noexcept {
    return Call(L"RemoveScenario", name).Answer([&] {
        return scenarios_.Remove(com::ViewOf(name)) ? S_OK : E_FAIL;
    });
}

HRESULT RecoveryRepository::get_ScenarioNames(VARIANT* names) noexcept {
    return Call(L"get_ScenarioNames").Give([&] { return GiveVariants(Names(), names); }, names);
}

}  // namespace tovarin
