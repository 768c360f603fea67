#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""loopback.py SHIM: what sockets are bound to with the shim loaded, and that it stays out of children."""
import os
import subprocess
import sys

CASES = [("AF_INET", "0.0.0.0", "127.0.0.1"), ("AF_INET", "127.0.0.2", "127.0.0.2"),
         ("AF_INET6", "::", "::ffff:127.0.0.1"), ("AF_UNIX", "", "")]
BIND = """
import os, socket, sys
family, address = sys.argv[1:]
s = socket.socket(getattr(socket, family))
if family == "AF_UNIX":
    s.bind("\\0kelvo-test-%d" % os.getpid())
    print("")
else:
    s.setsockopt(socket.IPPROTO_IPV6, socket.IPV6_V6ONLY, 0) if family == "AF_INET6" else None
    s.bind((address, 0))
    print(s.getsockname()[0])
"""


def run(*command):
    shim = os.path.realpath(sys.argv[1])
    environment = {**os.environ, "LD_LIBRARY_PATH": os.path.dirname(shim), "LD_PRELOAD": os.path.basename(shim)}
    return subprocess.run(command, env=environment, capture_output=True, text=True)


def main():
    wrong = 0
    for family, address, bound in CASES:
        result = run(sys.executable, "-c", BIND, family, address)

        if result.stderr and "not supported" in result.stderr:
            continue  # a machine without IPv6
        if result.stdout.strip() != bound:
            print(f"{family} {address!r} was bound to {result.stdout!r} {result.stderr}")
            wrong = 1
    if "LD_PRELOAD" in run(sys.executable, "-c", "import os; os.execlp('env', 'env')").stdout:
        print("a child program inherits the shim")
        wrong = 1
    return wrong


if __name__ == "__main__":
    sys.exit(main())
