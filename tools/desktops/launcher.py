"""A launcher with one button, which starts the program that it is given with the token that the desktop gives for the press, and
tells how that ended. Its window stays, so that nothing comes to the front but what the desktop lets come."""
import os, subprocess, sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gio, GLib, Gtk

def launch(_):
    program = Gio.AppInfo.create_from_commandline(sys.argv[1], "Thornquill", Gio.AppInfoCreateFlags.SUPPORTS_STARTUP_NOTIFICATION)
    token = window.get_display().get_app_launch_context().get_startup_notify_id(program, []) or ""
    started = subprocess.Popen(sys.argv[1:], env=os.environ | {"DESKTOP_STARTUP_ID": token, "XDG_ACTIVATION_TOKEN": token})
    GLib.child_watch_add(GLib.PRIORITY_DEFAULT, started.pid, lambda _, status: print("ended", status, flush=True))

window, button = Gtk.Window(title="Launcher"), Gtk.Button(label="Start")
window.set_default_size(320, 240)
window.add(button)
button.connect("clicked", launch)
window.connect("destroy", Gtk.main_quit)
window.show_all()
Gtk.main()
