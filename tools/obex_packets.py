# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""OBEX packets as handset-simulator takes and makes them, and what it says in place of obexd."""

# Kelvo asks for the first four; the others keep gammu going (model atobex).
AT_ANSWERS = {b"AT": b"", b"ATE0": b"", b"AT+CGMI": b"Halden\r\n\r\n", b"AT+CGMM": b"Tessa 1\r\n\r\n", b"ATE1": b"",
              b"AT+CMEE=1": b"", b"AT+CMEE=2": b"", b"AT+CFUN=1": b"", b"AT+CGMR": b"R1\r\n\r\n", b"AT*EOBEX=?": b"",
              b"AT+CSCS?": b'+CSCS: "GSM"\r\n\r\n', b"AT+CSCS=?": b'+CSCS: ("GSM")\r\n\r\n', b'AT+CSCS="GSM"': b""}

OBEX_KINDS = {0x00: "connect", 0x01: "leave", 0x02: "put", 0x03: "get", 0x05: "path"}
GET_KINDS = {b"x-obex/folder-listing": "list", b"x-obex/capability": "room"}
CONTINUE, SUCCESS = 0x90, 0xA0
CAPABILITY = """<Capability><General><Memory><MemType>card</MemType><Free>700</Free></Memory>
<Memory><MemType>own</MemType><Free> 50000 </Free><Used>1</Used></Memory></General></Capability>"""
HOSTILE = [("../../up.jpg", "1"), ("/etc/a.jpg", "99999999999999999999"), ("a\\b.jpg", "-5"), ("nul&#0;.jpg", "1"),
           (".hidden", "0x7f"), ("n" * 300 + ".jpg", "1"), ("mobilefile.dbs", "264"), ("&#x202E;gpj.exe", "")]


class Packets:
    """Cuts a stream of bytes into OBEX packets."""

    def __init__(self):
        self.rest = b""

    def take(self, data):
        self.rest += data
        while len(self.rest) >= 3:
            length = max(int.from_bytes(self.rest[1:3], "big"), 3)
            if len(self.rest) < length:
                return
            packet, self.rest = self.rest[:length], self.rest[length:]
            yield packet


def headers(packet):
    """The headers of a PUT or GET packet by their codes."""
    found, at = {}, 3
    while at < len(packet):
        header = packet[at]
        length = {0x80: 2, 0xC0: 5}.get(header & 0xC0) or max(int.from_bytes(packet[at + 1:at + 3], "big"), 3)
        found[header] = packet[at + 3:at + length]
        at += length
    return found


def has_body(packet):
    """Whether a PUT packet has a header of length or body: without one, it deletes."""
    return bool(headers(packet).keys() & {0xC3, 0x48, 0x49})


def reply(code, body=None):
    """An answer with a body, the last piece of it unless there is more to come."""
    end = b"" if body is None else bytes([0x48 if code == CONTINUE else 0x49]) + (len(body) + 3).to_bytes(2, "big") + body
    return bytes([code]) + (len(end) + 3).to_bytes(2, "big") + end
