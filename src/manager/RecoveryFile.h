// The file open in the Manager: its repository, and what is known of it.
#pragma once

#include "com/Ptr.h"
#include "manager/OpenResult.h"
#include "model/Repository.h"

namespace recoveryui::manager {

// A scenario beside its name, which the object does not hold.
struct NamedScenario {
    std::wstring name;
    com::Ptr<IUnknown> scenario;
};

class RecoveryFile {
public:
    explicit RecoveryFile(IObjectRack* rack) noexcept : rack_(rack) {}

    // An untitled file in a repository of its own; without one the file stays closed.
    void Start();
    // Empties the repository into an untitled file.
    [[nodiscard]] HRESULT MakeNew();
    // Opens for editing, or for viewing only where that is refused. After Refuse nothing has changed.
    OpenResult Open(const std::wstring& path);
    // To its own path, and to another that becomes its own. A failure changes nothing.
    [[nodiscard]] HRESULT Save();
    [[nodiscard]] HRESULT SaveAs(const std::wstring& path);

    // Puts what the wizard made into the file, in place of what it edited if there was something.
    [[nodiscard]] HRESULT Store(const NamedScenario& edited, const NamedScenario& made);

    const model::Repository& Repository() const noexcept { return repository_; }
    const std::wstring& Path() const noexcept { return path_; }
    bool IsUntitled() const noexcept { return path_.empty(); }
    bool IsReadOnly() const noexcept { return readOnly_; }
    bool IsDirty() const noexcept { return dirty_; }
    void MarkDirty() noexcept { dirty_ = true; }

private:
    void Become(const std::wstring& path, bool readOnly);

    com::Ptr<IObjectRack> rack_;
    model::Repository repository_;
    std::wstring path_;
    bool readOnly_ = false;
    bool dirty_ = false;
};

}  // namespace recoveryui::manager
