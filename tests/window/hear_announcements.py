"""Prints what a screen reader says of itself as it comes: the names of the notifications that come up, one a line."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def heard(event):
    if "showing" in event.type and event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
        print(event.source.get_name(), flush=True)


listener = Atspi.EventListener.new(heard)
listener.register("object:state-changed:showing")
# Else a name that was asked for once is believed for ever.
listener.register("object:property-change:accessible-name")
print("listening", flush=True)
Atspi.event_main()
