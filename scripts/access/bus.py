"""The accessibility bus, as a screen reader has it."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

State = Atspi.StateType

# What is asked about has gone meanwhile, or is too busy to answer.
Gone = GLib.Error


def join():
    """Comes as a screen reader does: the session's programs tell from then on what they show."""
    session = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    reading = GLib.Variant("b", True)
    session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                      GLib.Variant("(ssv)", ("org.a11y.Status", "ScreenReaderEnabled", reading)),
                      None, Gio.DBusCallFlags.NONE, -1, None)
    Atspi.init()
    Atspi.set_timeout(5000, -1)  # milliseconds: handlers keep the program busy
    # What is remembered would have to be told of every change, and isn't told of all.
    Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)


def children(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child


def states(node):
    return set(node.get_state_set().get_states())


def actions(node):
    """Their names, in their order. Only of a node that has actions."""
    return [Atspi.Action.get_action_name(node, index) for index in range(node.get_n_actions())]


def text(node):
    """What stands in a box."""
    return Atspi.Text.get_text(node, 0, -1)


def windows(program):
    """Those that the program has on view."""
    shown = []
    for application in children(Atspi.get_desktop(0)):
        try:
            if application.get_name() == program:
                shown += [each for each in children(application) if State.SHOWING in states(each)]
        except Gone:
            pass  # one that has ended may stand in the list yet
    return shown
