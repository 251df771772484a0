#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "component/automation/ComPtr.h"
#include "component/automation/Errors.h"
#include "component/automation/Text.h"

namespace brivane::component {
namespace {

struct Record {
  std::string description;
  std::string source;
  IID interfaceId{};
};

/// The error record of the thread, taken away.
Record TakeRecord() {
  ComPtr<IErrorInfo> info;
  Record record;
  if (GetErrorInfo(0, info.Put()) != S_OK) return record;
  BSTR text = nullptr;
  info->GetDescription(&text);
  record.description = FromBstr(text);
  SysFreeString(text);
  info->GetSource(&text);
  record.source = FromBstr(text);
  SysFreeString(text);
  info->GetGUID(&record.interfaceId);
  return record;
}

TEST(ErrorsTest, AnErrorGoesOutAsAResultWithItsDescriptionAndSource) {
  const HRESULT result =
      Answering<IDispatch>([] { throw host::Error(1234, "De kolom is vergrendeld — nu", "Kwandero.Kolom"); });
  EXPECT_EQ(result, static_cast<HRESULT>(0x800A04D2));
  const Record record = TakeRecord();
  EXPECT_EQ(record.description, "De kolom is vergrendeld — nu");
  EXPECT_EQ(record.source, "Kwandero.Kolom");
  EXPECT_EQ(record.interfaceId, IID_IDispatch);
}

TEST(ErrorsTest, OtherExceptionsDoNotCrossEither) {
  EXPECT_EQ(Answering<IDispatch>([] { throw std::runtime_error("iets anders"); }), static_cast<HRESULT>(0x800A01B8));
  EXPECT_EQ(TakeRecord().description, "iets anders");
  EXPECT_EQ(Answering<IDispatch>([] { throw 5; }), static_cast<HRESULT>(0x800A01B8));
  EXPECT_TRUE(FAILED(Answering<IDispatch>([] { throw std::bad_alloc(); })));
  EXPECT_EQ(Answering<IDispatch>([] {}), S_OK);
}

TEST(ErrorsTest, NumbersAreKeptBothWays) {
  for (const std::int32_t number : {1, 6, 13, 91, 1234, 65535, -2147221427, static_cast<std::int32_t>(E_ACCESSDENIED)})
    EXPECT_EQ(ErrorOf(ResultOf(host::Error(number, "", ""))).Number(), number);
  // A positive number that no result can hold.
  EXPECT_EQ(ErrorOf(ResultOf(host::Error(65536, "", ""))).Number(), 440);
}

TEST(ErrorsTest, AnErrorRecordComesInWithEverything) {
  EXCEPINFO info{};
  info.scode = static_cast<SCODE>(0x800A0000 + 1234);
  info.bstrDescription = SysAllocString(L"Omschrijving staat vast");
  info.bstrSource = SysAllocString(L"Kwandero.Kolom");
  const host::Error error = ErrorOf(DISP_E_EXCEPTION, &info);
  EXPECT_EQ(error.Number(), 1234);
  EXPECT_EQ(error.Description(), "Omschrijving staat vast");
  EXPECT_EQ(error.Source(), "Kwandero.Kolom");
}

TEST(ErrorsTest, AShortCodeGoesBeforeTheResult) {
  EXCEPINFO info{};
  info.wCode = 1001;
  EXPECT_EQ(ErrorOf(DISP_E_EXCEPTION, &info).Number(), 1001);
}

TEST(ErrorsTest, ARecordWithoutWordsGetsThoseOfItsError) {
  EXCEPINFO info{};
  info.scode = DISP_E_TYPEMISMATCH;
  const host::Error result = ErrorOf(DISP_E_EXCEPTION, &info);
  EXPECT_EQ(result.Number(), 13);
  EXPECT_EQ(result.Description(), "Type mismatch");
  EXPECT_EQ(result.Source(), "BrivaneVrijeKolom");
  info = {};
  info.wCode = 11;
  info.bstrSource = SysAllocString(L"Kwandero.Kolom");
  const host::Error code = ErrorOf(DISP_E_EXCEPTION, &info);
  EXPECT_EQ(code.Number(), 11);
  EXPECT_EQ(code.Description(), "Division by zero");
  EXPECT_EQ(code.Source(), "Kwandero.Kolom");
  info = {};
  const host::Error nothing = ErrorOf(DISP_E_EXCEPTION, &info);
  EXPECT_EQ(nothing.Number(), 440);
  EXPECT_EQ(nothing.Description(), "Automation error");
}

TEST(ErrorsTest, WordsThatARecordHasStayAlsoWhereTheyAreNone) {
  EXCEPINFO info{};
  info.scode = static_cast<SCODE>(0x800A0000 + 13);
  info.bstrDescription = SysAllocString(L"");
  EXPECT_EQ(ErrorOf(DISP_E_EXCEPTION, &info).Description(), "");
}

TEST(ErrorsTest, ARecordThatIsFilledLaterIsFilled) {
  EXCEPINFO info{};
  info.pfnDeferredFillIn = [](EXCEPINFO* record) -> HRESULT {
    record->wCode = 77;
    record->bstrDescription = SysAllocString(L"later");
    return S_OK;
  };
  const host::Error error = ErrorOf(DISP_E_EXCEPTION, &info);
  EXPECT_EQ(error.Number(), 77);
  EXPECT_EQ(error.Description(), "later");
}

struct Meaning {
  HRESULT result;
  std::int32_t number;
};

class ResultTest : public testing::TestWithParam<Meaning> {};

TEST_P(ResultTest, MeansTheNumberThatHostsKnow) { EXPECT_EQ(ErrorOf(GetParam().result).Number(), GetParam().number); }

INSTANTIATE_TEST_SUITE_P(Results, ResultTest,
                         testing::Values(Meaning{DISP_E_OVERFLOW, 6}, Meaning{E_OUTOFMEMORY, 7},
                                         Meaning{DISP_E_DIVBYZERO, 11}, Meaning{DISP_E_BADINDEX, 9},
                                         Meaning{DISP_E_TYPEMISMATCH, 13}, Meaning{DISP_E_UNKNOWNNAME, 438},
                                         Meaning{DISP_E_MEMBERNOTFOUND, 438}, Meaning{DISP_E_PARAMNOTOPTIONAL, 449},
                                         Meaning{DISP_E_BADPARAMCOUNT, 450},
                                         Meaning{static_cast<HRESULT>(0x800A005B), 91},
                                         Meaning{RPC_E_DISCONNECTED, static_cast<std::int32_t>(RPC_E_DISCONNECTED)}));

}  // namespace
}  // namespace brivane::component
