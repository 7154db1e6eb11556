#include "platform/win32/visual_styles.h"

#include <gtest/gtest.h>

namespace qm::platform::win32 {
namespace {

HANDLE CurrentContext() {
  HANDLE context = nullptr;
  GetCurrentActCtx(&context);
  if (context) ReleaseActCtx(context);
  return context;
}

// Whether the look of the thread's next windows is that of the current controls.
bool CurrentControlsAreInForce() {
  ACTCTX_SECTION_KEYED_DATA data{};
  data.cbSize = sizeof data;
  return FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_WINDOW_CLASS_REDIRECTION, L"Button",
                                  &data) != FALSE;
}

TEST(LookOfWindows, IsCurrentWithinTheScopeAndTheHostsOwnAfterwards) {
  const HANDLE before = CurrentContext();
  EXPECT_FALSE(CurrentControlsAreInForce());
  {
    const VisualStyles styles;
    EXPECT_TRUE(CurrentControlsAreInForce());
    { const VisualStyles again; }
    EXPECT_TRUE(CurrentControlsAreInForce());
  }
  EXPECT_FALSE(CurrentControlsAreInForce());
  EXPECT_EQ(CurrentContext(), before);
}

}  // namespace
}  // namespace qm::platform::win32
