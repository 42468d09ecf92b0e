"""Prints the names of everything that the program's window shows to a screen reader, one a line."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def names(node):
    if node is None:
        return
    if node.get_state_set().contains(Atspi.StateType.SHOWING) and node.get_name():
        yield f"{node.get_role_name()}: {node.get_name()}"
    for i in range(node.get_child_count()):
        yield from names(node.get_child_at_index(i))


desktop = Atspi.get_desktop(0)
for i in range(desktop.get_child_count()):
    application = desktop.get_child_at_index(i)
    if application and "ostrelum" in application.get_name():
        for line in names(application):
            print(line)
