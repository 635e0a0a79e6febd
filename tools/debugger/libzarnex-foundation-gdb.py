# gdb runs this when it loads the library of that name; zarnex_gdb.py stands beside it.
import os
import sys

import gdb

# Not __file__: run from within another script, this one has the other's.
sys.path.insert(0, os.path.dirname(os.path.abspath(sys._getframe().f_code.co_filename)))
import zarnex_gdb

zarnex_gdb.register(gdb.current_objfile())
