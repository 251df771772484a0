#include <map>

#include "tests/component/control/ControlTest.h"

namespace brivane::component::test {
namespace {

constexpr host::Color kRed{0x0000FF};

ComPtr<IStream> NewStream() {
  ComPtr<IStream> stream;
  EXPECT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()), S_OK);
  return stream;
}

void Rewind(IStream& stream) { stream.Seek({}, STREAM_SEEK_SET, nullptr); }

/// Properties as text, as a form's file keeps them.
class TextBag final : public IPropertyBag {
 public:
  STDMETHODIMP QueryInterface(REFIID, void** out) override {
    *out = nullptr;
    return E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    const auto found = texts.find(name);
    if (found == texts.end()) return E_INVALIDARG;
    value->vt = VT_BSTR;
    value->bstrVal = ::SysAllocString(found->second.c_str());
    return S_OK;
  }
  STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) override {
    texts[name] = std::to_wstring(value->lVal);
    return S_OK;
  }

  std::map<std::wstring, std::wstring> texts;
};

class PersistenceTest : public ControlTest {
 protected:
  void Change() {
    SIZEL wide{8001, 0};
    EXPECT_EQ(container.Object().SetExtent(DVASPECT_CONTENT, &wide), S_OK);
    dummy->Control().PutBackColor(kRed);
  }
  /// Another control in the place of the first.
  void Replace() {
    container.Remove();
    dummy = Dummy::Make();
    Insert();
    EXPECT_EQ(Extent().cx, 5292);
    EXPECT_EQ(dummy->BackColor(), host::kButtonFace);
  }
  [[nodiscard]] bool IsDirty() const { return container.As<IPersistStreamInit>()->IsDirty() == S_OK; }
};

TEST_F(PersistenceTest, IsDirtyAfterItsWidthOrColourChangedUntilItIsSaved) {
  EXPECT_FALSE(IsDirty());
  SIZEL wide{8001, 0};
  container.Object().SetExtent(DVASPECT_CONTENT, &wide);
  EXPECT_TRUE(IsDirty());
  const auto stream = NewStream();
  EXPECT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), FALSE), S_OK);
  EXPECT_TRUE(IsDirty());
  EXPECT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  EXPECT_FALSE(IsDirty());
  dummy->Control().PutBackColor(kRed);
  EXPECT_TRUE(IsDirty());
}

TEST_F(PersistenceTest, KeepsWidthAndColourInAStream) {
  Change();
  const auto stream = NewStream();
  EXPECT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  Replace();
  Rewind(*stream.Get());
  EXPECT_EQ(container.As<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  EXPECT_EQ(Extent().cx, 8001);
  EXPECT_EQ(dummy->BackColor(), kRed);
  EXPECT_FALSE(IsDirty());
}

TEST_F(PersistenceTest, WritesNoMoreThanItSaid) {
  ULARGE_INTEGER most{};
  EXPECT_EQ(container.As<IPersistStreamInit>()->GetSizeMax(&most), S_OK);
  const auto stream = NewStream();
  container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE);
  STATSTG written{};
  stream->Stat(&written, STATFLAG_NONAME);
  EXPECT_EQ(written.cbSize.QuadPart, 20U);
  EXPECT_EQ(most.QuadPart, 20U);
}

TEST_F(PersistenceTest, RefusesAStreamThatIsTooShortOrNotItsOwn) {
  const auto persist = container.As<IPersistStreamInit>();
  const auto stream = NewStream();
  const char other[20] = "iets heel anders";
  stream->Write(other, 7, nullptr);
  Rewind(*stream.Get());
  EXPECT_EQ(persist->Load(stream.Get()), STG_E_READFAULT);
  Rewind(*stream.Get());
  stream->Write(other, sizeof other, nullptr);
  Rewind(*stream.Get());
  EXPECT_EQ(persist->Load(stream.Get()), STG_E_INVALIDHEADER);
  EXPECT_EQ(Extent().cx, 5292);
}

TEST_F(PersistenceTest, AColourThatFollowsTheContainerStillFollowsItAfterLoading) {
  const auto stream = NewStream();
  container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE);
  container.backColor = 0x00C8FFC8;
  Rewind(*stream.Get());
  EXPECT_EQ(container.As<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  EXPECT_EQ(dummy->BackColor().value, 0x00C8FFC8);
}

TEST_F(PersistenceTest, KeepsWidthAndColourAsTextInAPropertyBag) {
  Change();
  TextBag bag;
  EXPECT_EQ(container.As<IPersistPropertyBag>()->Save(&bag, TRUE, FALSE), S_OK);
  EXPECT_EQ(bag.texts.size(), 3U);
  EXPECT_EQ(bag.texts[L"_ExtentX"], L"8001");
  EXPECT_EQ(bag.texts[L"_ExtentY"], L"2646");
  EXPECT_EQ(bag.texts[L"BackColor"], L"255");
  Replace();
  EXPECT_EQ(container.As<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
  EXPECT_EQ(Extent().cx, 8001);
  EXPECT_EQ(dummy->BackColor(), kRed);
}

TEST_F(PersistenceTest, LeavesAColourThatFollowsTheContainerOutOfABag) {
  TextBag bag;
  container.As<IPersistPropertyBag>()->Save(&bag, TRUE, FALSE);
  EXPECT_EQ(bag.texts.count(L"BackColor"), 0U);
  container.As<IPersistPropertyBag>()->Save(&bag, TRUE, TRUE);
  EXPECT_EQ(bag.texts[L"BackColor"], L"-2147483633");
}

TEST_F(PersistenceTest, ABagWithoutPropertiesLeavesTheControlAsDesigned) {
  TextBag bag;
  bag.texts[L"_ExtentX"] = L"breed";
  EXPECT_EQ(container.As<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
  EXPECT_EQ(Extent().cx, 5292);
  EXPECT_EQ(dummy->BackColor(), host::kButtonFace);
}

TEST_F(PersistenceTest, KeepsWidthAndColourInAStorage) {
  Change();
  ComPtr<IStorage> storage;
  ASSERT_EQ(::StgCreateDocfile(nullptr, STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_CREATE | STGM_DELETEONRELEASE, 0,
                               storage.Put()),
            S_OK);
  const auto persist = container.As<IPersistStorage>();
  EXPECT_EQ(persist->Save(storage.Get(), FALSE), S_OK);
  EXPECT_TRUE(IsDirty());
  EXPECT_EQ(persist->SaveCompleted(nullptr), S_OK);
  EXPECT_FALSE(IsDirty());
  Replace();
  EXPECT_EQ(container.As<IPersistStorage>()->Load(storage.Get()), S_OK);
  EXPECT_EQ(Extent().cx, 8001);
  EXPECT_EQ(dummy->BackColor(), kRed);
}

}  // namespace
}  // namespace brivane::component::test
