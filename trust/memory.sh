# Every allocation of every operation, failed in turn.

need googletest >&2 || fail "Cannot test: $reason"
configure linux ON >&2
cmake --build --preset linux -j "$jobs" --target test-memory >&2
build/linux/bin/test-memory >build/trust/memory.table

cat <<'END'
Each request for memory that an operation makes was refused in turn, alone and with all
requests behind it, each time in a process of its own. Then either the operation goes on and
its objects are whole and of use, or it takes the way out that its header states: an end with
its message, status and exit flag, or `std::bad_alloc`. There was no third outcome. On Linux;
the Windows library has its allocation functions inside, where a program cannot replace them.

END
cat build/trust/memory.table
