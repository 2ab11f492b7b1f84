"""What Keldra's popover shows, read through the accessibility interface."""


class View:
    """A snapshot of the popover."""

    def __init__(self, window):
        self.rows = []  # (text, {title: button})
        self.controls = {}  # name: node, of everything outside the rows
        self.status = ""
        for node in window.descendants():
            role = node.role
            if role == "list item":
                self.rows.append((node.name, {button.name: button for button in node.children()}))
            elif role in ("push button", "check box"):
                self.controls.setdefault(node.name, node)
            elif role == "label":
                self.controls.setdefault(node.description or node.name, node)
        if "Status" in self.controls:
            self.status = self.controls["Status"].name

    def button(self, title):
        return next((buttons[title] for _, buttons in self.rows if title in buttons), None)

    def mounted_at(self, name):
        """The open button's title beside "umount NAME", without its verb; None while NAME is not mounted."""
        for _, buttons in self.rows:
            if f"umount {name}" in buttons:
                return next((title[5:] for title in buttons if title.startswith("open ")), None)
        return None

    def unmounted_esps(self):
        return [title[6:] for text, buttons in self.rows if text.startswith("ESP on ")
                for title in buttons if title.startswith("mount ")]

    def has_row_of(self, name):
        return any(text.startswith(f"{name} on ") for text, _ in self.rows)

    def lines(self):
        for text, buttons in self.rows:
            yield "row     " + " / ".join(text.split("\n")) + "".join(f"  [{title}]" for title in buttons)
        yield f"status  {self.status}"
