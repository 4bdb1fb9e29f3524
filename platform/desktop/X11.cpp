#include "platform/desktop/X11.h"

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <poll.h>
#include <string>

#include <QtGui/QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

namespace platform {
namespace {

template <class Reply>
std::unique_ptr<Reply, void (*)(void*)> Own(Reply* reply) {
  return {reply, std::free};
}

xcb_atom_t Atom(xcb_connection_t* connection, std::string_view name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const auto reply = Own(xcb_intern_atom_reply(connection, cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t RootOf(xcb_connection_t* connection) {
  return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

// A window that is never shown.
xcb_window_t CreateHiddenWindow(xcb_connection_t* connection) {
  const xcb_window_t id = xcb_generate_id(connection);
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(connection, 0, id, RootOf(connection), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  return id;
}

// The same for as long as a question takes.
class HiddenWindow {
 public:
  explicit HiddenWindow(xcb_connection_t* connection)
      : connection_(connection), id_(CreateHiddenWindow(connection)) {}
  ~HiddenWindow() {
    xcb_destroy_window(connection_, id_);
    xcb_flush(connection_);
  }
  HiddenWindow(const HiddenWindow&) = delete;
  HiddenWindow& operator=(const HiddenWindow&) = delete;
  xcb_window_t id() const { return id_; }

 private:
  xcb_connection_t* connection_;
  xcb_window_t id_;
};

bool HasMore(xcb_connection_t* connection) {
  pollfd ready{xcb_get_file_descriptor(connection), POLLIN, 0};
  return poll(&ready, 1, 1000) > 0 && xcb_connection_has_error(connection) == 0;
}

// The time that the server put on the change of a property; 0 when it stays silent.
std::uint32_t TimeOfPropertyChange(xcb_connection_t* connection) {
  do {
    while (const auto event = Own(xcb_poll_for_event(connection))) {
      if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY)
        return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
    }
  } while (HasMore(connection));
  return 0;
}

xcb_client_message_event_t MessageFor(xcb_window_t window, xcb_atom_t type, std::uint8_t format) {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = format;
  message.window = window;
  message.type = type;
  return message;
}

void SendToRoot(xcb_connection_t* connection, const xcb_client_message_event_t& message, std::uint32_t mask) {
  xcb_send_event(connection, 0, RootOf(connection), mask, reinterpret_cast<const char*>(&message));
}

// A startup message is text, broadcast in pieces of 20 bytes up to and with its closing zero.
void Broadcast(xcb_connection_t* connection, xcb_window_t sender, const std::string& text) {
  auto message = MessageFor(sender, Atom(connection, "_NET_STARTUP_INFO_BEGIN"), 8);
  const xcb_atom_t further = Atom(connection, "_NET_STARTUP_INFO");
  for (std::size_t done = 0; done <= text.size(); done += sizeof message.data.data8) {
    std::memset(message.data.data8, 0, sizeof message.data.data8);
    text.copy(reinterpret_cast<char*>(message.data.data8), sizeof message.data.data8, done);
    SendToRoot(connection, message, XCB_EVENT_MASK_PROPERTY_CHANGE);
    message.type = further;
  }
}

// The value of a startup message in quotes, the quotes and backslashes in it marked.
std::string Quoted(std::string_view value) {
  std::string quoted = "\"";
  for (const char letter : value) {
    if (letter == '"' || letter == '\\') quoted += '\\';
    quoted += letter;
  }
  return quoted + "\"";
}

// The window that holds the time of the user's last action in `window`: itself, or another one that it names.
xcb_window_t UserTimeWindow(xcb_connection_t* connection, xcb_window_t window) {
  const auto cookie = xcb_get_property(connection, 0, window, Atom(connection, "_NET_WM_USER_TIME_WINDOW"),
                                       XCB_ATOM_WINDOW, 0, 1);
  const auto reply = Own(xcb_get_property_reply(connection, cookie, nullptr));
  if (!reply || xcb_get_property_value_length(reply.get()) != sizeof(xcb_window_t)) return window;
  return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
}

// Window managers that prevent the stealing of the focus compare this time with that of the window in front.
void SetUserTime(xcb_connection_t* connection, xcb_window_t window, std::uint32_t timestamp) {
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, UserTimeWindow(connection, window),
                      Atom(connection, "_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, 32, 1, &timestamp);
}

}  // namespace

X11Connection ConnectToX11() {
  X11Connection connection(xcb_connect(nullptr, nullptr), xcb_disconnect);
  if (xcb_connection_has_error(connection.get()) != 0) connection.reset();
  return connection;
}

xcb_connection_t* X11OfTheToolkit() {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

std::uint32_t X11Time(xcb_connection_t* connection) {
  const HiddenWindow window(connection);
  xcb_change_property(connection, XCB_PROP_MODE_APPEND, window.id(), XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0,
                      nullptr);
  xcb_flush(connection);
  return TimeOfPropertyChange(connection);
}

void EndStartupSequence(xcb_connection_t* connection, std::string_view startupId) {
  const HiddenWindow sender(connection);
  Broadcast(connection, sender.id(), "remove: ID=" + Quoted(startupId));
  // The sender must live until its messages are on their way, which a question and its answer makes sure.
  Own(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

// Before the window is shown its states are the program's own to write; the toolkit adds to what stands
// there.
void SkipTaskBar(xcb_connection_t* connection, xcb_window_t window) {
  const xcb_atom_t skip = Atom(connection, "_NET_WM_STATE_SKIP_TASKBAR");
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, Atom(connection, "_NET_WM_STATE"),
                      XCB_ATOM_ATOM, 32, 1, &skip);
}

void ActivateX11Window(xcb_connection_t* connection, xcb_window_t window, std::uint32_t timestamp) {
  constexpr std::uint32_t fromAnApplication = 1;
  if (timestamp != 0) SetUserTime(connection, window, timestamp);
  auto message = MessageFor(window, Atom(connection, "_NET_ACTIVE_WINDOW"), 32);
  message.data.data32[0] = fromAnApplication;
  message.data.data32[1] = timestamp;
  SendToRoot(connection, message, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
  xcb_flush(connection);
}

xcb_window_t AskClipboardManager(xcb_connection_t* connection, bool isTextAlone) {
  const xcb_atom_t manager = Atom(connection, "CLIPBOARD_MANAGER");
  const auto owner =
      Own(xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, manager), nullptr));
  if (!owner || owner->owner == XCB_WINDOW_NONE) return 0;
  const xcb_window_t window = CreateHiddenWindow(connection);
  const xcb_atom_t kinds[] = {Atom(connection, "UTF8_STRING"), Atom(connection, "text/plain"),
                              Atom(connection, "text/rtf"), Atom(connection, "image/png")};
  const xcb_atom_t list = Atom(connection, "THORNQUILL_CLIPBOARD_KINDS");
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, list, XCB_ATOM_ATOM, 32,
                      isTextAlone ? 2 : static_cast<std::uint32_t>(std::size(kinds)), kinds);
  xcb_convert_selection(connection, window, manager, Atom(connection, "SAVE_TARGETS"), list,
                        XCB_CURRENT_TIME);
  xcb_flush(connection);
  return window;
}

}  // namespace platform
