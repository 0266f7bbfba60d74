"""What a power cut could take, judged by the system calls that strace recorded.

With its option -y strace tells the path of each open file. Paths are absolute here.
"""

import os
import re

WRITING = ("write", "pwrite64", "writev", "pwritev", "ftruncate", "fallocate")
SYNCING = ("fsync", "fdatasync")
CALL = re.compile(r"(\w+)\((.*)\) += ([^- ].*)")
OPENED = re.compile(r"\d+<([^>]*)>")
TEXT = re.compile(r'"((?:[^"\\]|\\.)*)"')


def successful(lines):
    """(name, arguments, path of the open file in the first argument) of each call that succeeded"""
    for line in lines:
        call = CALL.match(line)
        if call is not None:
            opened = OPENED.match(call[2])
            yield call[1], call[2], opened[1] if opened else ""


def synced(lines):
    """@return the paths of all files that were synced"""
    return {path for name, arguments, path in successful(lines) if name in SYNCING}


def lost_by_power_cut(lines, directory, with_modes=True):
    """@return what is wrong with the order of the calls

    Whatever is written in directory, the working directory, must be on the disk before it gets
    another name, and in the end; and after a renaming so must be the directory of the new name.
    with_modes: the same goes for permissions
    """
    changing = WRITING + ("fchmod",) * with_modes
    unsynced = set()
    wrong = []
    for name, arguments, path in successful(lines):
        if name in changing and path.startswith(directory + "/"):
            unsynced.add(path)
        elif name in SYNCING:
            unsynced.discard(path)
        elif name == "syncfs":
            unsynced.clear()
        elif name.startswith("rename"):
            old, new = (os.path.normpath(os.path.join(directory, text))
                        for text in TEXT.findall(arguments))
            early = {path for path in unsynced if (path + "/").startswith(old + "/")}
            wrong += [f"{path} is renamed before it is synced" for path in sorted(early)]
            unsynced = unsynced - early | {os.path.dirname(new)}
    return wrong + [f"{path} is not synced" for path in sorted(unsynced)]
