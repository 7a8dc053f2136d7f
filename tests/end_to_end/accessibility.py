"""The interface of a running program as assistive technology sees it: controls by role and name, with their actions.

Import it once the environment is that of the desktop on which the program runs.
"""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from desktop import wait_until  # noqa: E402

Role = Atspi.Role


def _walk(node):
    yield node
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield from _walk(child)


class Program:
    def __init__(self, process):
        self.process = process

    def find(self, role, name=None, description=None):
        """The control of that role, name and description, once it is shown."""
        def search():
            assert self.process.poll() is None, f"the program ended with status {self.process.returncode}"
            return self._search(role, name, description)
        return Control(wait_until(search, f"{role and role.value_nick} {name or description}"))

    def shows(self, role, name):
        return self._search(role, name, None) is not None

    def _search(self, role, name, description):
        Atspi.get_desktop(0).clear_cache()
        try:
            for application in _walk_children(Atspi.get_desktop(0)):
                if application.get_process_id() == self.process.pid:
                    for node in _walk(application):
                        if role in (None, node.get_role()) and name in (None, node.get_name()) \
                                and description in (None, node.get_description()) \
                                and node.get_state_set().contains(Atspi.StateType.SHOWING):
                            return node
        except GLib.Error:
            pass
        return None


def _walk_children(node):
    return filter(None, (node.get_child_at_index(index) for index in range(node.get_child_count())))


class Control:
    def __init__(self, node):
        self.node = node

    @property
    def name(self):
        self.node.clear_cache()
        return self.node.get_name()

    def children(self, role):
        """All controls of that role below this one, shown or not."""
        self.node.clear_cache()
        return [Control(node) for node in _walk(self.node) if node.get_role() == role]

    @property
    def center(self):
        """Where it lies on the screen."""
        extents = self.node.get_extents(Atspi.CoordType.SCREEN)
        return extents.x + extents.width // 2, extents.y + extents.height // 2

    @property
    def description(self):
        return self.node.get_description()

    def has(self, state):
        self.node.clear_cache()
        return self.node.get_state_set().contains(state)

    @property
    def enabled(self):
        return self.has(Atspi.StateType.ENABLED)

    def press(self):
        wait_until(lambda: self.enabled, f"{self.name} to be enabled")
        self.node.do_action(0)

    def focus(self):
        self.node.grab_focus()
        wait_until(lambda: self.has(Atspi.StateType.FOCUSED), f"the focus on {self.name}")

    @property
    def text(self):
        return Atspi.Text.get_text(self.node, 0, -1)

    @property
    def value(self):
        return self.node.get_current_value()

    @value.setter
    def value(self, value):
        self.node.set_current_value(value)
