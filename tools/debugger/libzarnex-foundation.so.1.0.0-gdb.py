# gdb runs this when it loads the library of that name; zarnex_gdb.py stands beside it.
import os
import sys

import gdb

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import zarnex_gdb

zarnex_gdb.register(gdb.current_objfile())
