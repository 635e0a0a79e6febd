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

void fill(ZArray<float>& array, int count) {
    for (int i = 0; i < count; ++i)
        array[i] = static_cast<float>(i);
}

bool isFilled(ZArray<float>& array, int count) {
    bool same = true;
    for (int i = 0; i < count; ++i)
        same = same && array[i] == static_cast<float>(i);
    return same;
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
            {"ZArray[]", endsSilent,
             [](Trial& t) {
                 ZArray<float> array(16, 0);
                 t.attempt([&] { fill(array, 500); });
                 t.expect(isFilled(array, 500));
             }},
            {"ZArray insert", endsSilent,
             [](Trial& t) {
                 ZArray<float> array(16, 0);
                 fill(array, 10);
                 t.attempt([&] { array.insert(-1.0f, 0); });
                 t.expect(array[0] == -1.0f && array[1] == 0.0f && array[10] == 9.0f);
             }},
            {"ZArray remove", endsSilent,
             [](Trial& t) {
                 ZArray<float> array(16, 0);
                 fill(array, 10);
                 t.attempt([&] { array.remove(1); });
                 t.expect(array[0] == 1.0f && array[8] == 9.0f);
             }},
            {"ZArray move", endsSilent,
             [](Trial& t) {
                 ZArray<float> array(16, 0);
                 fill(array, 10);
                 int status = 0;
                 t.attempt([&] { status = array.move(40, 0, 10, 1); });
                 t.expect(status == 0 ? array[40] == 0.0f && array[49] == 9.0f : t.failed());
                 t.expect(isFilled(array, 10));
             }},
            {"ZArray copy", endsSilent,
             [](Trial& t) {
                 ZArray<float> array(16, 0);
                 fill(array, 10);
                 int status = 0;
                 t.attempt([&] { status = array.copy(40, 0, 10, 1); });
                 t.expect(status == 0 ? array[40] == 0.0f && array[49] == 9.0f : t.failed());
                 t.expect(isFilled(array, 10));
             }},
            {"ZArray freeze and restore", endsAlloc,
             [](Trial& t) {
                 ZArray<float> array(16, 0);
                 fill(array, 20);
                 array.freeze(); // writes the cache, all zero, over the start
                 t.attempt([&] { array.restore(); });
                 t.expect(array[0] == 0.0f && array[19] == 19.0f);
             }},
            {"ZArray reset", endsSilent,
             [](Trial& t) {
                 ZArray<float> array(16, 0);
                 fill(array, 500);
                 t.attempt([&] { array.reset(); });
                 t.expect(isFilled(array, 10));
             }},
            {"ZArrayManager", asksNothing,
             [](Trial& t) { t.attempt([] { ZArrayManager(64).growHeap(); }); }},
        },
    };
}
