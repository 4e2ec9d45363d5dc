#!/usr/bin/env python3
"""Changes one setting of an installation on rfhost.

Usage: change_setting.py NAME VALUE

VALUE is yes or no for a setting that begins with "bln", else a text. The host has to show the root folder. Needs Debian's
package python3-jeepney.
"""
import sys

from jeepney import DBusAddress, MessageType, new_method_call
from jeepney.io.blocking import open_dbus_connection

LONG_TEXTS = ("strSupply", "strProjects", "strPlaceSettings", "strNewItemTemplate", "Folders")
PIECE = 1000
TEXT, NUMBER, YES_NO = 1, 3, 6
GET, PUT, CALL = 0, 1, 2

bus = None


def send(owner, path, member, signature, body):
    address = DBusAddress(path, bus_name=owner, interface="roomfold.Automation")
    reply = bus.send_and_get_reply(new_method_call(address, member, signature, body))
    if reply.header.message_type == MessageType.error:
        sys.exit(f"{member}: {reply.body[0]}")
    return reply.body


def packed(value):
    """A value as it travels: a tag and what D-Bus carries of it. Texts are bytes of UTF-16."""
    if isinstance(value, bool):
        return 3, ("b", value)
    if isinstance(value, int):
        return 6, ("i", value)
    return 11, ("ay", value.encode("utf-16-le"))


def ask(thing, member, kind, *arguments):
    owner, path = thing
    body = (member, kind, [packed(argument) for argument in arguments])
    return send(owner, path, "Invoke", "sya(yv)", body)[0][1][1]


def put(post, name, kind, value):
    # Where the property is there already, this gives that one.
    added = ask(ask(post, "UserProperties", GET), "Add", CALL, name, kind, False)
    ask(added, "Value", PUT, value)


def put_long(post, name, text):
    last = len(text) // PIECE
    for number in range(last + 1):
        put(post, f"{name}{number}", TEXT, text[number * PIECE:(number + 1) * PIECE])
    put(post, name + "Count", NUMBER, last)


def change(post, name, value):
    if name in LONG_TEXTS:
        put_long(post, name, value.replace("\r\n", "\n").replace("\n", "\r\n"))
    elif not name.startswith("bln"):
        put(post, name, TEXT, value)
    elif value in ("yes", "no"):
        put(post, name, YES_NO, value == "yes")
    else:
        sys.exit(f"{name} is yes or no")
    ask(post, "Save", CALL)


def main():
    global bus
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    bus = open_dbus_connection(bus="SESSION")
    host = send("Outlook.Application", "/automation", "Root", "s", ("Outlook.Application",))[0][1][1]
    folder = ask(ask(host, "ActiveExplorer", CALL), "CurrentFolder", GET)
    change(ask(ask(folder, "Items", GET), "Item", CALL, "Settings"), sys.argv[1], sys.argv[2])


main()
