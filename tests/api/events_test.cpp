// Hosts connect to the event interface; it stays silent.

#include <windows.h>

#include <gtest/gtest.h>
#include <olectl.h>

#include "tests/api/component.h"
#include "tests/api/record_object.h"
#include "tests/api/scripted_dispatch.h"

namespace qm::tests {
namespace {

class Events : public testing::Test {
 protected:
  Events() {
    ComPtr<IConnectionPointContainer> container;
    EXPECT_EQ(form_.As(&container), S_OK);
    EXPECT_EQ(container->FindConnectionPoint(DIID___PrintForm, &point_), S_OK);
  }
  std::size_t ConnectionCount() {
    ComPtr<IEnumConnections> connections;
    EXPECT_EQ(point_->EnumConnections(&connections), S_OK);
    std::size_t count = 0;
    for (CONNECTDATA data{}; connections->Next(1, &data, nullptr) == S_OK; ++count) data.pUnk->Release();
    return count;
  }

  Component component_;
  ComPtr<_PrintForm> form_ = component_.NewPrintForm();
  ComPtr<IConnectionPoint> point_;
  ScriptedDispatch sink_;
};

TEST_F(Events, ThereIsOneConnectionPoint) {
  ComPtr<IConnectionPointContainer> container;
  ASSERT_EQ(form_.As(&container), S_OK);
  ComPtr<IUnknown> identity, own;
  container.As(&identity);
  form_.As(&own);
  EXPECT_EQ(identity, own);

  ComPtr<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(&points), S_OK);
  ComPtr<IConnectionPoint> point;
  EXPECT_EQ(points->Next(1, &point, nullptr), S_OK);
  EXPECT_EQ(point, point_);
  ComPtr<IConnectionPoint> none;
  EXPECT_EQ(points->Next(1, &none, nullptr), S_FALSE);
  EXPECT_EQ(points->Reset(), S_OK);
  EXPECT_EQ(points->Skip(1), S_OK);
  EXPECT_EQ(points->Skip(1), S_FALSE);

  IID id{};
  EXPECT_EQ(point_->GetConnectionInterface(&id), S_OK);
  EXPECT_TRUE(IsEqualGUID(id, DIID___PrintForm));
  ComPtr<IConnectionPointContainer> back;
  EXPECT_EQ(point_->GetConnectionPointContainer(&back), S_OK);
  EXPECT_EQ(back, container);
  EXPECT_EQ(container->FindConnectionPoint(IID__Email, &none), CONNECT_E_NOCONNECTION);
}

TEST_F(Events, HostsAdviseAndUnadvise) {
  DWORD first = 0, second = 0;
  EXPECT_EQ(point_->Advise(&sink_, &first), S_OK);
  EXPECT_EQ(point_->Advise(&sink_, &second), S_OK);
  EXPECT_NE(first, 0u);
  EXPECT_NE(first, second);
  EXPECT_EQ(ConnectionCount(), 2u);
  EXPECT_EQ(point_->Unadvise(first), S_OK);
  EXPECT_EQ(point_->Unadvise(first), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(ConnectionCount(), 1u);
  EXPECT_EQ(point_->Unadvise(second), S_OK);
  EXPECT_EQ(sink_.References(), 1);
  EXPECT_EQ(point_->Advise(nullptr, &first), E_POINTER);
}

TEST_F(Events, TheObjectLetsItsSinksGoWithItself) {
  DWORD cookie = 0;
  EXPECT_EQ(point_->Advise(&sink_, &cookie), S_OK);
  EXPECT_GT(sink_.References(), 1);
  point_.Reset();
  form_.Reset();
  EXPECT_EQ(sink_.References(), 1);
}

TEST_F(Events, ProgressIsNeverRaised) {
  DWORD cookie = 0;
  ASSERT_EQ(point_->Advise(&sink_, &cookie), S_OK);
  for (long i = 0; i < 50; ++i) {
    Call(form_.Get(), L"AsignarCampo", {Value(L"F"), Value(i)});
    Call(form_.Get(), L"AñadirCampoTabla", {Value(L"T"), Value(L"C"), Value(i), Value(3L)});
  }
  RecordObject records;
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF", {Value(&records)}).result, S_OK);
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF2", {Value(&records)}).result, S_OK);
  Call(form_.Get(), L"ImprimirModelo");
  EXPECT_EQ(sink_.Calls(), 0);
  EXPECT_EQ(point_->Unadvise(cookie), S_OK);
}

}  // namespace
}  // namespace qm::tests
