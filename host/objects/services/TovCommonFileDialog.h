// The host's file dialog: the platform's own, behind named properties.
#pragma once

#include <string>

#include "com/Variant.h"
#include "objects/HostObject.h"
#include "objects/services/NamedMembers.h"

namespace tovarin {

// This host keeps tests in folders, so the dialog always is the one of the file system:
// ShowFileSystemButton is kept and changes nothing, and of the two captions SetDialogCaption4FileSystem
// wins. DoModal(open) gives the path, an empty one after Cancel.
class TovCommonFileDialog final : public HostObject<TovCommonFileDialog, NamedMembers> {
public:
    static constexpr const wchar_t* kName = L"TovCommonFileDialog";
    static constexpr const wchar_t* kProgId = L"Vantrel.TovCommonFileDialog";

    TovCommonFileDialog();

private:
    enum Member : DISPID {
        kFileFilter,
        kCaption,
        kFileSystemCaption,
        kInitialPath,
        kInitialName,
        kFileSystemButton,
        kCheckExistence,
        kCreateAttachment,
        kMemberCount,
        kDoModal = kMemberCount,
    };

    DISPID FindMember(const wchar_t* name) const noexcept override;
    HRESULT InvokeMember(DISPID member, WORD flags, DISPPARAMS& parameters,
                         VARIANT* result) noexcept override;
    HRESULT Put(Member member, DISPPARAMS& parameters) noexcept;
    HRESULT DoModal(DISPPARAMS& parameters, VARIANT* result) noexcept;
    std::wstring Ask(bool open) const;
    // Asks before a name without extension would replace the file that its completed form names.
    bool MayReplace(HWND owner, const std::wstring& path) const;

    std::wstring_view Text(Member member) const noexcept { return values_[member].Text(); }
    bool IsSet(Member member) const noexcept { return values_[member].Get().boolVal != VARIANT_FALSE; }
    std::wstring Caption() const;

    com::Variant values_[kMemberCount];
};

}  // namespace tovarin
