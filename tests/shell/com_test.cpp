// Every class of the module as a citizen of COM.
#include <windows.h>

#include <ocidl.h>

#include <docobj.h>

#include <tuple>
#include <vector>

#include "com/Automation.h"
#include "com/Create.h"
#include "com/SafeArray.h"
#include "com/Variant.h"
#include "harness/ComTest.h"
#include "harness/ProcessWindows.h"
#include "shell/Classes.h"

namespace recoveryui::test {
namespace {

const IID kInterfaces[] = {IID_IUnknown, IID_IDispatch, IID_IObjectRackClient, IID_IPropertyPage};

using CitizenTest = ComTest;

HRESULT GetClass(const CLSID& clsid, REFIID iid, void** object) {
    const auto getClass = reinterpret_cast<HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"RecoveryUI.dll"), "DllGetClassObject")));
    return getClass(clsid, iid, object);
}

com::Ptr<IClassFactory> Factory(const CLSID& clsid) {
    com::Ptr<IClassFactory> factory;
    EXPECT_EQ(GetClass(clsid, IID_IClassFactory, reinterpret_cast<void**>(factory.GetAddressOf())), S_OK);
    return factory;
}

TEST_F(CitizenTest, EveryClassKeepsItsIdentityWhateverIsAskedOfIt) {
    for (const com::ClassEntry& entry : shell::Classes()) {
        const auto object = New<IUnknown>(entry.progId);
        ASSERT_TRUE(object);
        std::vector<com::Ptr<IUnknown>> views;
        for (const IID& iid : kInterfaces) {
            void* raw = this;
            const HRESULT hr = object->QueryInterface(iid, &raw);
            EXPECT_EQ(hr, raw ? S_OK : E_NOINTERFACE) << "a failed query clears its argument";
            if (FAILED(hr)) continue;
            views.emplace_back(static_cast<IUnknown*>(raw))->Release();
            EXPECT_EQ(com::Query<IUnknown>(views.back().Get()).Get(), object.Get());
            for (const auto& view : views) {
                com::Ptr<IUnknown> back;
                EXPECT_EQ(view->QueryInterface(iid, reinterpret_cast<void**>(back.GetAddressOf())), S_OK);
            }
        }
        EXPECT_GE(views.size(), 3u) << Utf8(entry.progId);
        EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
        const auto client = com::Query<IObjectRackClient>(object.Get());
        ASSERT_TRUE(client) << Utf8(entry.progId);
        EXPECT_EQ(client->GetRack(nullptr), E_POINTER);
        com::Ptr<IObjectRack> none;
        EXPECT_EQ(client->GetRack(none.GetAddressOf()), E_FAIL) << "none was given";
        EXPECT_FALSE(none);
    }
}

TEST_F(CitizenTest, FactoriesRefuseAggregationAndHoldTheModule) {
    void* object = this;
    EXPECT_EQ(GetClass(CLSID_NULL, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(GetClass(CLSID_RecoveryDlg, IID_IClassFactory, nullptr), E_POINTER);
    for (const com::ClassEntry& entry : shell::Classes()) {
        const auto factory = Factory(*entry.clsid);
        object = this;
        EXPECT_EQ(factory->CreateInstance(factory.Get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
        EXPECT_EQ(object, nullptr);
        object = this;
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStorage, &object), E_NOINTERFACE);
        EXPECT_EQ(object, nullptr);
        EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
    }
    EXPECT_TRUE(CanUnload());
    {
        const auto factory = Factory(CLSID_RecoveryDlg);
        factory->LockServer(TRUE);
        factory->LockServer(TRUE);
        factory->LockServer(FALSE);
    }
    EXPECT_FALSE(CanUnload()) << "one lock is left";
    Factory(CLSID_RecoveryDlg)->LockServer(FALSE);
}

// The name of a member, or of the whole; the help is required.
std::wstring NameOf(ITypeInfo& info, MEMBERID member = MEMBERID_NIL) {
    com::Bstr name, help;
    EXPECT_EQ(info.GetDocumentation(member, name.Put(), help.Put(), nullptr, nullptr), S_OK);
    EXPECT_FALSE(help.View().empty()) << Utf8(name.Text()) << " says nothing of itself";
    return name.Text();
}

TEST_F(CitizenTest, TheLibraryDescribesEveryClassInterfaceAndMember) {
    com::Ptr<ITypeLib> library;
    ASSERT_EQ(LoadTypeLib(L"RecoveryUI.dll", library.GetAddressOf()), S_OK);
    TLIBATTR* kind = nullptr;
    ASSERT_EQ(library->GetLibAttr(&kind), S_OK);
    EXPECT_EQ(std::make_tuple(kind->syskind, kind->wMajorVerNum, kind->wMinorVerNum, kind->lcid),
              std::make_tuple(SYS_WIN32, 1, 0, 0u));
    library->ReleaseTLibAttr(kind);
    com::Bstr title;
    library->GetDocumentation(-1, nullptr, title.Put(), nullptr, nullptr);
    EXPECT_EQ(title.View(), L"RecoveryUI 1.0 Type Library");

    size_t classes = 0;
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        com::Ptr<ITypeInfo> info;
        TYPEATTR* type = nullptr;
        ASSERT_EQ(library->GetTypeInfo(index, info.GetAddressOf()), S_OK);
        ASSERT_EQ(info->GetTypeAttr(&type), S_OK);
        const std::wstring name = NameOf(*info.Get());
        for (UINT function = 0; function < type->cFuncs; ++function) {
            FUNCDESC* description = nullptr;
            ASSERT_EQ(info->GetFuncDesc(function, &description), S_OK);
            // A dual interface also lists the members of IUnknown and IDispatch.
            const bool isOwn = type->typekind != TKIND_DISPATCH || description->memid < 0x60000000;
            if (isOwn) NameOf(*info.Get(), description->memid);
            info->ReleaseFuncDesc(description);
        }
        const bool isClass = type->typekind == TKIND_COCLASS;
        const auto object = isClass ? New<IUnknown>((L"Vantrel." + name).c_str()) : com::Ptr<IUnknown>();
        for (UINT answered = 0; isClass && answered < type->cImplTypes; ++answered) {
            HREFTYPE reference = 0;
            com::Ptr<ITypeInfo> named;
            TYPEATTR* interfaceType = nullptr;
            com::Ptr<IUnknown> view;
            ASSERT_EQ(info->GetRefTypeOfImplType(answered, &reference), S_OK);
            ASSERT_EQ(info->GetRefTypeInfo(reference, named.GetAddressOf()), S_OK);
            ASSERT_EQ(named->GetTypeAttr(&interfaceType), S_OK);
            object->QueryInterface(interfaceType->guid, reinterpret_cast<void**>(view.GetAddressOf()));
            EXPECT_TRUE(view) << Utf8(name) << " is no " << Utf8(NameOf(*named.Get()));
            named->ReleaseTypeAttr(interfaceType);
        }
        classes += isClass;
        info->ReleaseTypeAttr(type);
    }
    EXPECT_EQ(classes, shell::Classes().size());
}

TEST_F(CitizenTest, EveryClassIsCalledByName) {
    for (const com::ClassEntry& entry : shell::Classes()) {
        const auto object = New<IDispatch>(entry.progId);
        ASSERT_TRUE(object) << Utf8(entry.progId);
        UINT descriptions = 0;
        EXPECT_EQ(object->GetTypeInfoCount(&descriptions), S_OK);
        EXPECT_EQ(descriptions, 1u);
    }
    // The interface that is not dual, by the names of its description.
    const Rack rack;
    const auto page = New<IObjectRackClient>(L"Vantrel.RecoveryPPSpecifier");
    const com::Variant argument(com::Query<IDispatch>(rack.Get()).Get());
    com::Variant result;
    EXPECT_EQ(com::CallMethod(com::Query<IDispatch>(page.Get()).Get(), L"SetRack", {&argument, 1}, &result),
              S_OK);
    com::Ptr<IObjectRack> held;
    EXPECT_EQ(page->GetRack(held.GetAddressOf()), S_OK);
    EXPECT_EQ(held.Get(), rack.Get());

    constexpr DISPID kRepository = 3;
    const com::Variant repository(New<IUnknown>(L"Vantrel.RecoveryRepository").Get());
    for (const WORD way : {WORD{DISPATCH_PROPERTYPUT}, WORD{DISPATCH_PROPERTYPUTREF}}) {
        const auto wizard = New<IRecoveryWizard>(L"Vantrel.RecoveryWizard");
        DISPID named = DISPID_PROPERTYPUT;
        DISPPARAMS parameters{const_cast<VARIANT*>(&repository.Get()), &named, 1, 1};
        EXPECT_EQ(wizard->Invoke(kRepository, IID_NULL, 0, way, &parameters, nullptr, nullptr, nullptr),
                  S_OK);
        com::Ptr<IUnknown> held;
        wizard->get_Repository(held.GetAddressOf());
        EXPECT_EQ(held.Get(), repository.Object()) << "as scripts put objects, " << way;
    }
}

// Its elements, and what it says of an index that it does not have.
std::wstring Elements(const com::CVtlSafeArray<BSTR>& array) {
    std::wstring all;
    com::Bstr element;
    for (LONG index = array.LowerBound(); index <= array.UpperBound(); ++index) {
        EXPECT_EQ(array.GetElement(index, &element), S_OK);
        all += element.Text() + L";";
    }
    for (const LONG outside : {array.LowerBound() - 1, array.UpperBound() + 1}) {
        try {
            EXPECT_FALSE(array.GetElement(outside, &element)) << "given";
        } catch (const std::runtime_error& error) {
            all += L"!";
            EXPECT_STREQ(error.what(), "CVtlSafeArray");
        }
    }
    return all;
}

TEST(SafeArray, GrowsShrinksAndTurnsRoundAndKnowsItsBounds) {
    com::CVtlSafeArray<BSTR> array;
    EXPECT_EQ(Elements(array), L"!!") << "no array yet";
    ASSERT_EQ(array.Create(3), S_OK);
    for (LONG index = 0; index < 3; ++index)
        ASSERT_EQ(array.PutElement(index, com::Bstr(std::wstring(1, static_cast<wchar_t>(L'a' + index)))),
                  S_OK);
    EXPECT_EQ(Elements(array), L"a;b;c;!!");
    ASSERT_EQ(array.Reverse(), S_OK);
    EXPECT_EQ(Elements(array), L"c;b;a;!!");
    ASSERT_EQ(array.Resize(2), S_OK);
    ASSERT_EQ(array.Reverse(), S_OK);
    EXPECT_EQ(Elements(array), L"b;c;!!");
    ASSERT_EQ(array.Resize(3), S_OK);
    EXPECT_EQ(Elements(array), L"b;c;;!!");
    SafeArrayLock(array.Get());
    EXPECT_EQ(array.Resize(1), DISP_E_ARRAYISLOCKED) << "what else fails is answered";
    SafeArrayUnlock(array.Get());

    ASSERT_EQ(array.Create(2, 3), S_OK);
    ASSERT_EQ(array.PutElement(1, com::Bstr(L"last"), 2), S_OK);
    com::Bstr last;
    ASSERT_EQ(array.GetElement(1, &last, 2), S_OK);
    EXPECT_EQ(last.View(), L"last");
    EXPECT_EQ(array.Count(), 2u);
    EXPECT_EQ(Elements(array), L";;!!");
    EXPECT_THROW((void)array.GetElement(1, &last, 3), std::runtime_error);
    EXPECT_NE(array.Reverse(), S_OK);
}

}  // namespace
}  // namespace recoveryui::test
