#include "objects/services/FileLocator.h"

#include "com/Module.h"
#include "objects/Paths.h"
#include "objects/services/PathRules.h"

namespace tovarin {
namespace {

constexpr long kInTestFolder = 1;
constexpr long kInProductFolder = 4;

bool SameFileName(std::wstring_view first, std::wstring_view second) {
    return CompareStringOrdinal(first.data(), static_cast<int>(first.size()), second.data(),
                                static_cast<int>(second.size()), TRUE) == CSTR_EQUAL;
}

HRESULT Keep(std::wstring& folder, BSTR given) noexcept {
    return com::Guarded([&] { folder = com::ViewOf(given); });
}

}  // namespace

FileLocator::FileLocator() {
    const std::wstring module = com::Module::FileName();
    productFolder_ = module.substr(0, module.rfind(L'\\'));
}

HRESULT FileLocator::Locate(BSTR path, long flags, long reserved, BSTR* located) noexcept {
    return Call(L"Locate", path, flags, reserved)
        .Give(
            [&]() -> HRESULT {
                const std::wstring_view stored = com::ViewOf(path);
                if (stored.empty()) return E_INVALIDARG;
                std::wstring full(stored);
                if (KindOf(stored) == PathKind::Relative) full = LocateRelative(stored, flags);
                if (KindOf(stored) == PathKind::Repository && !repositoryFolder_.empty())
                    full = RepositoryFile(stored, repositoryFolder_).value_or(std::wstring());
                return full.empty() ? STG_E_FILENOTFOUND : com::CopyTo(located, full);
            },
            located);
}

std::wstring FileLocator::LocateRelative(std::wstring_view path, long flags) const {
    const std::pair<long, const std::wstring*> places[] = {{kInTestFolder, &testFolder_},
                                                           {kInProductFolder, &productFolder_}};
    for (const auto& [flag, folder] : places) {
        if (!(flags & flag) || folder->empty()) continue;
        const auto full = Normalized(Joined(*folder, path));
        if (full && IsFile(*full)) return *full;
    }
    return {};
}

HRESULT FileLocator::HandBack(BSTR located) noexcept {
    return Call(L"HandBack", located).Answer([&] {
        const std::wstring_view path = com::ViewOf(located);
        return KindOf(path) == PathKind::Repository || RepositoryPath(path, repositoryFolder_, SameFileName)
                   ? S_OK
                   : E_INVALIDARG;
    });
}

HRESULT FileLocator::MakeRelative(BSTR full, BSTR* stored) noexcept {
    return Call(L"MakeRelative", full)
        .Give(
            [&] {
                const std::wstring path(com::ViewOf(full));
                if (path.empty()) return E_INVALIDARG;
                if (KindOf(path) != PathKind::Full) return com::CopyTo(stored, path);
                auto shorter = RepositoryPath(path, repositoryFolder_, SameFileName);
                if (!shorter) shorter = Below(path, testFolder_, SameFileName);
                return com::CopyTo(stored, shorter.value_or(path));
            },
            stored);
}

HRESULT FileLocator::SetTestFolder(BSTR folder) noexcept {
    return Keep(testFolder_, folder);
}

HRESULT FileLocator::SetProductFolder(BSTR folder) noexcept {
    return Keep(productFolder_, folder);
}

HRESULT FileLocator::SetRepositoryFolder(BSTR folder) noexcept {
    return Keep(repositoryFolder_, folder);
}

}  // namespace tovarin
