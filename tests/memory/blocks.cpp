// The block store and the array on it, whose failures end the process in silence.

#include "tests/memory/operations.h"

#include <zarnex/foundation.h>

namespace {

class Store : public VMAccess {
public:
    ~Store() {
        unallocate();
    }
    bool hasBlock() const {
        return block_ != nullptr;
    }
};

bool isFilled(ZArray<float>& array, int count) {
    bool same = true;
    for (int i = 0; i < count; ++i)
        same = same && array[i] == static_cast<float>(i);
    return same;
}

/// `edit` on an array of 0, 1 and so on, whose status is 0 unless it fails, makes it as `isDone`
/// tells.
template <class Edit, class Done>
auto filled(Edit edit, Done isDone) {
    return [=](Trial& trial) {
        ZArray<float> array(16, 0);
        for (int i = 0; i < 20; ++i)
            array[i] = static_cast<float>(i);
        int status = 0;
        trial.attempt([&] { status = edit(array); });
        trial.expect(status == 0 ? isDone(array) : trial.failed() && isFilled(array, 20));
    };
}

} // namespace

Group blockOperations() {
    return {
        "`VMAccess`, `ZArray`, `ZArrayManager`",
        {
            {"VMAccess allocate", endsSilent,
             [](Trial& t) {
                 Store store;
                 t.attempt([&] { store.allocate(64); });
                 char bytes[64] = {};
                 t.expect(store.hasBlock() && store.saveBlock(bytes, 0, 64) == 0);
             }},
            {"VMAccess reallocate", goesOn,
             [](Trial& t) {
                 Store store;
                 store.allocate(64);
                 t.attempt([&] { t.expect(store.reallocate(640) == 0); });
                 t.expect(store.hasBlock() == !t.failed());
                 char bytes[640] = {};
                 t.expect(store.saveBlock(bytes, 0, 640) == 0); // nothing without a block
             }},
            {"VMAccess copied, read", asksNothing,
             [](Trial& t) {
                 Store store;
                 store.allocate(64);
                 char bytes[64] = {};
                 store.saveBlock(bytes, 0, 64);
                 t.attempt([&] {
                     VMAccess copy(store);
                     copy.getBlock(bytes, 0, 64);
                 });
                 t.expect(store.hasBlock());
             }},
            {"ZArray(n, extra)", endsSilent,
             [](Trial& t) {
                 t.attempt([&] {
                     ZArray<float> array(16, 3);
                     t.expect(array.size() == 19);
                 });
             }},
            {"ZArray[] and reset", endsSilent,
             filled([](auto& a) { return (a[500] = 7.0f, a.reset()); },
                    [](auto& a) { return isFilled(a, 10); })},
            {"ZArray insert", endsSilent,
             filled([](auto& a) { return (a.insert(-1.0f, 0), 0); },
                    [](auto& a) { return a[0] == -1.0f && a[1] == 0.0f && a[10] == 9.0f; })},
            {"ZArray remove", endsSilent,
             filled([](auto& a) { return (a.remove(1), 0); },
                    [](auto& a) { return a[0] == 1.0f && a[8] == 9.0f; })},
            {"ZArray move", endsSilent,
             filled([](auto& a) { return a.move(40, 0, 10, 1); },
                    [](auto& a) { return isFilled(a, 20) && a[40] == 0.0f && a[49] == 9.0f; })},
            {"ZArray copy", endsSilent,
             filled([](auto& a) { return a.copy(40, 0, 10, 1); },
                    [](auto& a) { return isFilled(a, 20) && a[40] == 0.0f && a[49] == 9.0f; })},
            {"ZArray freeze and restore", endsAlloc, // the cache is all zero
             filled([](auto& a) { return a.freeze() + a.restore(); },
                    [](auto& a) { return a[9] == 0.0f && a[19] == 19.0f; })},
            {"ZArrayManager", asksNothing,
             [](Trial& t) { t.attempt([] { ZArrayManager(64).growHeap(); }); }},
        },
    };
}
