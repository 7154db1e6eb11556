// The designer within a call of the host: what rests meanwhile, how it ends, and that it leaves nothing.

#include <gmock/gmock.h>

#include "designer/win32/modal.h"
#include "platform/win32/module.h"
#include "runtime/error.h"
#include "tests/designer/win32/clerk.h"
#include "tests/platform/win32/gdi_objects.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::GdiObjectCount;
using platform::win32::OwnedWindow;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// A window of the host that does something of its own when it is told to.
class HostWindow {
 public:
  static constexpr UINT kDo = WM_APP + 100;

  explicit HostWindow(
      std::function<void()> action = [] {}, DWORD style = 0)
      : action_(std::move(action)),
        window_(CreateWindowExW(0, L"STATIC", L"Contabilidad", WS_OVERLAPPEDWINDOW | WS_VISIBLE | style, 0, 0,
                                200, 100, nullptr, nullptr, nullptr, nullptr)) {
    SetWindowLongPtrW(window_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_.Get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
  }
  [[nodiscard]] HWND Get() const { return window_.Get(); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter) noexcept {
    if (message == kDo) reinterpret_cast<HostWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA))->action_();
    return DefWindowProcW(window, message, wide, parameter);
  }
  std::function<void()> action_;
  OwnedWindow window_;
};

TEST(Modality, TheHostsWindowsRestWhileItIsOpenAndWakeAsTheyWere) {
  WindowWorld world;
  const HostWindow first;
  const HostWindow second;
  const HostWindow disabled([] {}, WS_DISABLED);
  bool anyEnabled = true;
  EXPECT_TRUE(Visit(world, [&](Clerk&) {
    anyEnabled =
        IsWindowEnabled(first.Get()) || IsWindowEnabled(second.Get()) || IsWindowEnabled(disabled.Get());
  }));
  EXPECT_FALSE(anyEnabled);
  EXPECT_TRUE(IsWindowEnabled(first.Get()));
  EXPECT_TRUE(IsWindowEnabled(second.Get()));
  EXPECT_FALSE(IsWindowEnabled(disabled.Get()));
}

TEST(Modality, TheHostsWindowIsEnabledAndActiveAgainWhenTheDesignerGoes) {
  WindowWorld world;
  const HostWindow host;
  SetActiveWindow(host.Get());
  HWND owner = host.Get();
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) { owner = GetWindow(clerk.Form(), GW_OWNER); }));
  EXPECT_EQ(owner, nullptr);
  EXPECT_EQ(GetActiveWindow(), host.Get());
}

TEST(Modality, ASecondShowWhileItIsOpenIsError400) {
  WindowWorld world;
  WindowWorld another;
  int number = 0;
  std::u16string description;
  const HostWindow host([&] {
    try {
      ShowModeloPrint(another.world, another.menus, 1);
    } catch (const runtime::RuntimeError& error) {
      number = error.number();
      description = error.description();
    }
  });
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    SendMessageW(host.Get(), HostWindow::kDo, 0, 0);
    EXPECT_TRUE(IsWindow(clerk.Form()));
  }));
  EXPECT_EQ(number, 400);
  EXPECT_EQ(description, u"El formulario ya se está mostrando; no se puede mostrar como modal");
  EXPECT_NO_THROW(RequireNotShown());
}

struct IdleWindow : ModalWindow {
  std::atomic<bool> closed = false;
  std::atomic<bool> waiting = false;
  [[nodiscard]] bool Closed() const override { return closed; }
  bool Translate(MSG&) override { return false; }
  bool Idle() override {
    waiting = true;
    return false;
  }
  void ProgramEnds() override { closed = true; }
};

// As by programs that help people to use others: what is sent does not come out of the queue.
TEST(Modality, EndsWhenAMessageThatWasSentHasClosedTheWindow) {
  IdleWindow window;
  const HostWindow host([&] { window.closed = true; });
  std::atomic<bool> ended = false;
  bool byItself = false;
  std::thread helper([&, thread = GetCurrentThreadId()] {
    (void)WaitUntil([&] { return window.waiting.load(); });
    SendMessageW(host.Get(), HostWindow::kDo, 0, 0);
    byItself = WaitUntil([&] { return ended.load(); });
    PostThreadMessageW(thread, WM_NULL, 0, 0);
  });
  RunModal(window);
  ended = true;
  helper.join();
  EXPECT_TRUE(byItself);
}

TEST(Modality, TheEndOfTheProgramClosesItAndIsPassedOn) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    PostThreadMessageW(clerk.HostThread(), WM_QUIT, 7, 0);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(clerk.Form()); }));
  }));
  MSG message{};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7U);
}

TEST(Modality, TheEndOfTheProgramAsksBeforeAnythingIsDropped) {
  WindowWorld world;
  world.dialogs.confirmations = {true};
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Type(kAncho, u"12");
    PostThreadMessageW(clerk.HostThread(), WM_QUIT, 0, 0);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(clerk.Form()); }));
  }));
  MSG message{};
  (void)PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
  EXPECT_THAT(world.Kept(), HasSubstr("Width=\"6804\""));
}

TEST(Closing, AsksOnlyWhenTheModelWasModified) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [](Clerk&) {}));
  EXPECT_THAT(world.dialogs.askedConfirmations, ElementsAre());
}

TEST(Closing, YesSavesAndNoDropsTheChanges) {
  for (const bool yes : {true, false}) {
    WindowWorld world;
    world.dialogs.confirmations = {yes};
    EXPECT_TRUE(Visit(world, [](Clerk& clerk) { clerk.Type(kAncho, u"12"); }));
    EXPECT_EQ(world.dialogs.askedConfirmations.size(), 1U);
    EXPECT_EQ(world.Kept().empty(), !yes);
  }
}

TEST(Closing, KeepsTheWindowWhereTheUserWantedToSaveAndThatFailed) {
  WindowWorld world;
  world.dialogs.confirmations = {true, true};
  bool stayed = false;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Type(kAncho, u"12");
    world.files.failReplaceWith = runtime::ErrorNumber::PermissionDenied;
    SendMessageW(clerk.Form(), WM_CLOSE, 0, 0);
    stayed = IsWindow(clerk.Form()) && IsWindowVisible(clerk.Form());
    world.files.failReplaceWith.reset();
  }));
  EXPECT_TRUE(stayed);
  EXPECT_THAT(world.Kept(), HasSubstr("Width=\"6804\""));
}

TEST(Closing, ShutdownIsNotHeldUpAndAsksInItsSecondStage) {
  WindowWorld world;
  world.dialogs.confirmations = {true};
  LRESULT allowed = FALSE;
  std::size_t askedInTheFirstStage = 1;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Type(kAncho, u"12");
    allowed = SendMessageW(clerk.Form(), WM_QUERYENDSESSION, 0, 0);
    askedInTheFirstStage = world.dialogs.askedConfirmations.size();
    SendMessageW(clerk.Form(), WM_ENDSESSION, TRUE, 0);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(clerk.Form()); }));
  }));
  EXPECT_EQ(allowed, TRUE);
  EXPECT_EQ(askedInTheFirstStage, 0U);
  EXPECT_EQ(world.dialogs.askedConfirmations.size(), 1U);
  EXPECT_FALSE(world.Kept().empty());
}

TEST(Closing, AShutdownThatWasCalledOffLeavesTheWindow) {
  WindowWorld world;
  bool stayed = false;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    SendMessageW(clerk.Form(), WM_QUERYENDSESSION, 0, 0);
    SendMessageW(clerk.Form(), WM_ENDSESSION, FALSE, 0);
    SendMessageW(clerk.Form(), WM_NULL, 0, 0);
    stayed = IsWindow(clerk.Form());
  }));
  EXPECT_TRUE(stayed);
}

// How many windows and menus there are. Wine does not count them; there, a great many menus take all handles
// that are free and then new ones, so that the highest tells how many are in use, by all programs of the
// prefix.
long UserObjectCount() {
  if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS))
    return static_cast<long>(counted);
  long highest = 0;
  std::vector<HMENU> menus(3000);
  for (HMENU& menu : menus) {
    menu = CreateMenu();
    highest = std::max(highest, static_cast<long>(reinterpret_cast<UINT_PTR>(menu) & 0xFFFF));
  }
  for (const HMENU menu : menus) DestroyMenu(menu);
  return highest / 2;  // handles are two apart
}

UINT_PTR FreshKernelHandle() {
  const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  CloseHandle(event);
  return reinterpret_cast<UINT_PTR>(event);
}

TEST(OneHundredVisits, LeaveNoObjectBehind) {
  WindowWorld world;
  world.Keep(ModelFile(Campo("NOMBRE", 1500, 1500, 1500, 300)));
  world.menus[0] = {u"Campos disponibles", true, {u"NOMBRE", u"NIF"}};
  const auto visit = [&world] {
    return Visit(world, [](Clerk& clerk) {
      clerk.Drag(1800, 1650, 2400, 1650);
      clerk.Click(kGrabar);
    });
  };
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(visit());  // what is made once and kept stands by then
  world.Keep(ModelFile(Campo("NOMBRE", 1500, 1500, 1500, 300)));
  const long gdi = GdiObjectCount();
  const long user = UserObjectCount();
  const UINT_PTR kernel = FreshKernelHandle();
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(visit());
  constexpr long kOfOtherPrograms = 60;
  EXPECT_EQ(GdiObjectCount(), gdi);
  EXPECT_LE(UserObjectCount(), user + kOfOtherPrograms) << "one a visit would be a hundred";
  constexpr UINT_PTR kOfTheSystem = 4 * 40;  // its own threads come and go; handles are four apart
  EXPECT_LE(FreshKernelHandle(), kernel + kOfTheSystem);
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  EXPECT_FALSE(GetClassInfoExW(platform::win32::ThisModule(), ModeloPrintWindow::kClassName, &description));
}

}  // namespace
}  // namespace qm::designer::win32
