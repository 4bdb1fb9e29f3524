// What was copied is handed to a clipboard manager, here one of our own on a connection of its own.
#include <cstdlib>
#include <thread>

#include "platform/desktop/ClipboardHandOver.h"
#include "platform/desktop/X11.h"
#include "tests/support/Fixtures.h"

namespace {

class Manager {
 public:
  Manager() : window_(xcb_generate_id(server_.get())) {
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(server_.get())).data;
    xcb_create_window(server_.get(), 0, window_, screen.root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0,
                      0, nullptr);
    xcb_set_selection_owner(server_.get(), window_, Atom("CLIPBOARD_MANAGER"), XCB_CURRENT_TIME);
    Atom("");  // whose answer comes behind all that
  }

  // Takes the text when it is asked to, and tells so. Returns the text.
  std::string Serve() {
    xcb_selection_notify_event_t done{};
    while (const std::unique_ptr<xcb_generic_event_t, void (*)(void*)> event{
        xcb_wait_for_event(server_.get()), std::free}) {
      if (event->response_type == XCB_SELECTION_REQUEST) {
        const auto& asked = reinterpret_cast<const xcb_selection_request_event_t&>(*event);
        done = {XCB_SELECTION_NOTIFY, 0, 0, 0, asked.requestor, asked.selection, asked.target,
                asked.property};
        xcb_convert_selection(server_.get(), window_, Atom("CLIPBOARD"), Atom("UTF8_STRING"), Atom("TAKEN"),
                              0);
        xcb_flush(server_.get());
      } else if ((event->response_type & 0x7F) == XCB_SELECTION_NOTIFY) {
        xcb_send_event(server_.get(), 0, done.requestor, 0, reinterpret_cast<const char*>(&done));
        return Taken();
      }
    }
    return {};
  }

 private:
  xcb_atom_t Atom(std::string_view name) {
    const auto length = static_cast<std::uint16_t>(name.size());
    const auto cookie = xcb_intern_atom(server_.get(), 0, length, name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, void (*)(void*)> reply{
        xcb_intern_atom_reply(server_.get(), cookie, nullptr), std::free};
    return reply ? reply->atom : xcb_atom_t{};
  }
  std::string Taken() {
    const auto cookie = xcb_get_property(server_.get(), 0, window_, Atom("TAKEN"), XCB_ATOM_ANY, 0, 100);
    const std::unique_ptr<xcb_get_property_reply_t, void (*)(void*)> reply{
        xcb_get_property_reply(server_.get(), cookie, nullptr), std::free};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
  }

  platform::X11Connection server_ = platform::ConnectToX11();
  const xcb_window_t window_;
};

TEST(ClipboardHandOver, TheManagerTakesWhatWasCopied) {
  ASSERT_EQ(QGuiApplication::platformName(), u"xcb") << "to be run by scripts/on-virtual-display";
  QGuiApplication::clipboard()->setText(QStringLiteral("copied"));
  EXPECT_TRUE(platform::ClipboardHandOver().IsOver()) << "nobody is there";
  Manager manager;
  std::string taken;
  platform::ClipboardHandOver handing;
  EXPECT_FALSE(handing.IsOver());
  std::thread serving([&] { taken = manager.Serve(); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return handing.IsOver(); }));
  serving.join();
  EXPECT_EQ(taken, "copied");
}

}  // namespace
