// A part of the product in front of its user, with what every host has in its rack, and a folder of files.
#pragma once

#include "HostInterfaces.h"
#include "com/SafeArray.h"
#include "harness/ComTest.h"
#include "harness/HelpViewer.h"
#include "harness/ProcessWindows.h"
#include "harness/TestSettings.h"
#include "host/store_samples.h"
#include "host/temp_folder.h"
#include "resources/ids.h"

namespace recoveryui::test {

// A safe array of elements that each are made of one of the values, as host objects take it.
template <class Element, class Value>
com::CVtlSafeArray<Element> ArrayOf(const std::vector<Value>& values) {
    com::CVtlSafeArray<Element> array;
    EXPECT_EQ(array.Create(static_cast<ULONG>(values.size())), S_OK);
    for (LONG place = 0; const Value& value : values)
        EXPECT_EQ(array.PutElement(place++, typename com::CVtlSafeArray<Element>::Owner(value)), S_OK);
    return array;
}

class ProductTest : public ComTest {
protected:
    ProductTest() { rack_.Put(L"TestOptions", settings_.Get()).Put(L"HelpViewer", help_.Get()); }

    // A host that finds files in the test's folder.
    void PutLocator() {
        const auto locator = New<IFileLocatorFolders>(L"Tovarin.FileLocator");
        EXPECT_EQ(locator->SetTestFolder(com::Bstr(folder_.Path()).Get()), S_OK);
        rack_.Put(L"RACK_FILE_LOCATOR", locator.Get());
    }
    // Files of the test's folder by their full paths.
    std::wstring Path(const std::wstring& name) const { return folder_ / name; }
    std::string Content(const std::wstring& name) const { return folder_.Read(folder_ / name); }
    std::wstring MakeFile(const std::wstring& name, const std::string& bytes) const {
        folder_.Write(folder_ / name, bytes);
        return folder_ / name;
    }
    std::wstring MakeFile(const std::wstring& name,
                          const std::vector<tovarin::store::NamedScenario>& scenarios) const {
        return MakeFile(name, TextOfStore(scenarios));
    }
    // Of scenarios that each are described as "About <name>.".
    std::wstring MakePopUps(const std::wstring& name, const Rows& names) const {
        return MakeFile(name, tovarin::store::PopUps(names));
    }

    Rack rack_;
    const com::Ptr<HelpViewer> help_ = HelpViewer::Make();
    TestSettings settings_;
    tovarin::TempFolder folder_;
};

}  // namespace recoveryui::test
