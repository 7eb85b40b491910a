#include "objects/services/TovCommonFileDialog.h"

#include <commdlg.h>

#include <cderr.h>

#include <cwchar>

#include "objects/Paths.h"
#include "objects/Strings.h"
#include "objects/ids.h"
#include "objects/services/DialogFilter.h"

namespace tovarin {
namespace {

constexpr const wchar_t* kMemberNames[] = {
    L"FileFilter",      L"SetDialogCaption",     L"SetDialogCaption4FileSystem", L"InitialVirtualPath",
    L"InitialTestName", L"ShowFileSystemButton", L"SetCheckAttachmentExistence", L"CreateAttachmnet",
    L"DoModal"};

// Longer than any path of the platform; grown when the dialog asks for more.
constexpr DWORD kFirstBuffer = 32'768;

DWORD Flags(bool open, bool mustExist, bool mayCreate) {
    const DWORD common = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!open) return common | OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST;
    return common | (mustExist ? OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST : 0) |
           (mayCreate ? OFN_CREATEPROMPT : 0);
}

// Empty when the user cancelled.
std::wstring Show(OPENFILENAMEW& dialog, bool open, std::wstring name) {
    for (DWORD size = kFirstBuffer;;) {
        name.resize(size);
        dialog.lpstrFile = name.data();
        dialog.nMaxFile = size;
        if (open ? GetOpenFileNameW(&dialog) : GetSaveFileNameW(&dialog)) {
            name.resize(std::wcslen(name.c_str()));
            return name;
        }
        switch (CommDlgExtendedError()) {
            case 0: return {};
            case FNERR_BUFFERTOOSMALL: size *= 2; break;
            case FNERR_INVALIDFILENAME:
                // The proposed name cannot stand in a dialog: show it without one.
                if (name[0] == L'\0') throw com::HResultError(E_FAIL);
                break;
            default: throw com::HResultError(E_FAIL);
        }
        name.clear();
    }
}

}  // namespace

TovCommonFileDialog::TovCommonFileDialog() {
    for (int member = 0; member < kFileSystemButton; ++member) values_[member] = com::Variant(L"");
    for (int member = kFileSystemButton; member < kMemberCount; ++member)
        values_[member] = com::Variant(false);
}

DISPID TovCommonFileDialog::FindMember(const wchar_t* name) const noexcept {
    for (DISPID member = 0; member <= kDoModal; ++member) {
        if (SameName(name, kMemberNames[member])) return member;
    }
    return DISPID_UNKNOWN;
}

HRESULT TovCommonFileDialog::InvokeMember(DISPID member, WORD flags, DISPPARAMS& parameters,
                                          VARIANT* result) noexcept {
    if (member < 0 || member > kDoModal) return DISP_E_MEMBERNOTFOUND;
    if (member == kDoModal)
        return flags & DISPATCH_METHOD ? DoModal(parameters, result) : DISP_E_MEMBERNOTFOUND;
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF))
        return Put(static_cast<Member>(member), parameters);
    if (!(flags & DISPATCH_PROPERTYGET) || parameters.cArgs != 0) return DISP_E_MEMBERNOTFOUND;
    return Call(kMemberNames[member]).Answer([&] {
        return result ? VariantCopy(result, const_cast<VARIANT*>(&values_[member].Get())) : S_OK;
    });
}

HRESULT TovCommonFileDialog::Put(Member member, DISPPARAMS& parameters) noexcept {
    if (parameters.cArgs != 1) return DISP_E_BADPARAMCOUNT;
    const VARIANT& given = parameters.rgvarg[0];
    return Call(kMemberNames[member], given).Answer([&] {
        com::Variant value;
        const HRESULT hr =
            VariantChangeType(value.Put(), const_cast<VARIANT*>(&given), 0, values_[member].Type());
        if (SUCCEEDED(hr)) values_[member] = std::move(value);
        return hr;
    });
}

HRESULT TovCommonFileDialog::DoModal(DISPPARAMS& parameters, VARIANT* result) noexcept {
    if (parameters.cArgs != 1) return DISP_E_BADPARAMCOUNT;
    VARIANT chosen{};
    const HRESULT hr =
        Call(kMemberNames[kDoModal], parameters.rgvarg[0])
            .Give(
                [&] {
                    com::Variant open;
                    com::Check(VariantChangeType(open.Put(), &parameters.rgvarg[0], 0, VT_BOOL));
                    const com::Ptr<IUnknown> self = KeepAlive();
                    chosen = com::Variant(Ask(open.Get().boolVal != VARIANT_FALSE)).Detach();
                },
                &chosen);
    if (result) {
        *result = chosen;
    } else {
        VariantClear(&chosen);
    }
    return hr;
}

std::wstring TovCommonFileDialog::Caption() const {
    const std::wstring_view caption = Text(kFileSystemCaption);
    return std::wstring(caption.empty() ? Text(kCaption) : caption);
}

std::wstring TovCommonFileDialog::Ask(bool open) const {
    const std::wstring filter = PlatformFilter(Text(kFileFilter));
    const std::wstring folder(Text(kInitialPath));
    const std::wstring caption = Caption();

    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = GetActiveWindow();
    dialog.lpstrFilter = filter.empty() ? nullptr : filter.c_str();
    dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    dialog.lpstrTitle = caption.empty() ? nullptr : caption.c_str();
    dialog.Flags = Flags(open, IsSet(kCheckExistence), IsSet(kCreateAttachment));

    std::wstring name(Text(kInitialName));
    for (;;) {
        std::wstring path = Show(dialog, open, name);
        if (open || path.empty() || MayReplace(dialog.hwndOwner, path)) return path;
        name = std::move(path);
    }
}

bool TovCommonFileDialog::MayReplace(HWND owner, const std::wstring& path) const {
    const std::wstring extension = FirstExtension(Text(kFileFilter));
    if (extension.empty() || path.find(L'.') != path.npos) return true;
    const std::wstring completed = path + extension;
    if (!IsFile(completed)) return true;
    const std::wstring question = completed + LoadText(IDS_HOST_REPLACE_FILE);
    return MessageBoxW(owner, question.c_str(), Caption().c_str(),
                       MB_YESNO | MB_ICONEXCLAMATION | MB_DEFBUTTON2) == IDYES;
}

}  // namespace tovarin
