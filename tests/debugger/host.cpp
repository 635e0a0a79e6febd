// One object of each kind that debuggers show, whole and broken, for gdb to print and compare with
// rows.txt. Compiled without access control, so that it can break them.

#include <zarnex/foundation.h>

#include <cstring>
#include <new>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>

#pragma GCC diagnostic ignored "-Wunused-variable" // the debugger uses them

// Where the debugger stops.
__attribute__((noinline)) void everythingIsThere(void*) {
    asm volatile("" ::: "memory");
}

namespace {

// Raw memory under an object, so that it may be left in any state.
template <class T>
union Raw {
    explicit Raw(int byte = 0) {
        std::memset(bytes, byte, sizeof bytes);
    }
    ~Raw() {}

    unsigned char bytes[sizeof(T)];
    T object;
};

// The end of a page of zeros with nothing behind it.
template <class T>
T* endOfMemory() {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    char* const pages = static_cast<char*>(
        mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    munmap(pages + page, page);
    return reinterpret_cast<T*>(pages + page);
}

struct Thread : DLLNode {
    explicit Thread(int number) : colour(number) {}
    int colour;
};

void showText() {
    const ZString text(L"stitch \u00B0");
    const ZString& reference = text;
    const ZString none(L"");
    ZString moved(L"moved");
    const ZString movedTo(std::move(moved));
    ZString longText;
    for (int i = 0; i < 50; ++i)
        longText += L"0123456789";
    const ZMultiByteString bytes("bytes");
    const ZWideString wide(L"wide");
    ZGenericString fromBytes("generic");
    ZGenericString fromWide(L"generic");

    Raw<ZString> zeros;
    Raw<ZString> garbage(0xA5);
    Raw<ZString> astray;
    astray.object.array_.data_ = reinterpret_cast<wchar_t*>(16);
    astray.object.array_.allocLength_ = 8;
    wchar_t letters[] = {L'a', L'b', L'c', L'd'};
    Raw<ZString> endless;
    endless.object.array_.data_ = letters;
    endless.object.array_.allocLength_ = 4;
    Raw<ZMultiByteString> lastOfPage;
    lastOfPage.object.array_.data_ = endOfMemory<char>() - 3;
    lastOfPage.object.array_.data_[0] = 'a';
    lastOfPage.object.array_.data_[1] = 'b';
    lastOfPage.object.array_.allocLength_ = 32;
    Raw<ZString> destroyed;
    ::new (&destroyed.object) ZString(L"destroyed");
    destroyed.object.~ZString();
    everythingIsThere(&longText);
}

void showArrays() {
    const int values[] = {1, 2, 3};
    const ZXArray<int> numbers(values, 3);
    const ZXArray<int> none;
    ZXArray<ZString> texts;
    texts.add(ZString(L"a"));
    texts.add(ZString(L"b"));
    ZXArray<double> moved;
    moved.add(1.5);
    const ZXArray<double> movedTo(std::move(moved));
    ZArray<float> heights(2, 0);
    std::memset(heights.block_, 0, heights.blockBytes_);
    heights[1] = 0.5f;
    ZArray<float> frozen(1, 0);
    std::memset(frozen.block_, 0, frozen.blockBytes_);
    frozen.freeze();
    ZGroup group(2);
    ZGroupable item;
    group.addItem(&item);
    const double cells[] = {0, 1, 2, 3, 4, 5};
    const ZMatrix<double> matrix(2, 3, cells);
    const Z2DTrans transform;
    const Z2DXScale scale(2.0);

    Raw<ZXArray<int>> zeros;
    Raw<ZXArray<int>> garbage(0xA5);
    Raw<ZXArray<int>> huge;
    huge.object.data_ = reinterpret_cast<int*>(16);
    huge.object.length_ = huge.object.allocLength_ = 2000000000;
    Raw<ZXArray<int>> tooLong;
    tooLong.object.length_ = 9;
    tooLong.object.allocLength_ = 8;
    Raw<ZXArray<int>> cutOff;
    cutOff.object.data_ = endOfMemory<int>() - 2;
    cutOff.object.length_ = cutOff.object.allocLength_ = 5;
    Raw<ZArray<float>> wrongBlock(0xA5);
    Raw<ZGroup> wrongGroup(0xA5);
    Raw<ZMatrix<double>> wrongMatrix;
    wrongMatrix.object.rows_ = -2;
    Raw<ZMatrix<double>> nullMatrix;
    nullMatrix.object.rows_ = nullMatrix.object.cols_ = 2;
    everythingIsThere(&group);
}

void showLists() {
    ZList<int> numbers{1, 2, 3};
    const ZList<ZString> texts{ZString(L"a"), ZString(L"b")};
    const ZList<DPoint> none;
    ZSortList<double> sorted;
    sorted.add(2.5);
    sorted.add(0.5);
    ZList<int> longList;
    for (int i = 0; i < 300; ++i)
        longList.add(i);
    DLList threads;
    Thread red(1);
    Thread blue(2);
    threads.insert(red);
    threads.insert(blue);
    Stack noThreads;

    // Whole again before they are destroyed.
    ZList<int> cyclic{1, 2, 3};
    cyclic.head_->prev->next = cyclic.head_->next;
    ZList<int> cut{1, 2, 3};
    cut.head_->prev->next = nullptr;
    ZList<int> astray{1, 2, 3};
    astray.head_->next->next = reinterpret_cast<ZListNode<int>*>(16);
    Raw<ZList<int>> destroyed;
    ::new (&destroyed.object) ZList<int>{1, 2, 3};
    ZListNode<int>* const freed = destroyed.object.head_;
    destroyed.object.~ZList();
    destroyed.object.head_ = freed;
    Raw<ZList<int>> overrun;
    overrun.object.head_ = numbers.head_;
    overrun.object.count_ = 2;
    Raw<ZList<int>> garbage(0xA5);
    DLList wrongCount;
    Thread green(3);
    wrongCount.insert(green);
    wrongCount.count_ = 5;
    everythingIsThere(&threads);

    wrongCount.count_ = 1;
    cyclic.head_->prev->next = cyclic.head_;
    cut.head_->prev->next = cut.head_;
    astray.head_->next->next = astray.head_->prev;
    for (DLList* list : {&threads, &wrongCount})
        while (list->remove() != nullptr)
            continue;
}

void showValues() {
    const DPoint dPoint(0.1, -2.0);
    const DVector dVector(1.0, 1e300);
    const IPoint iPoint(1, -2);
    const IVector iVector(3, 4);
    const ZCoord<short> coord(5, -6);
    const ZVector<short> vector(7, 8);
    const ZTPoint<double> tPoint(0.5, 1.5);
    const GPoint gPoint(2.5, 3.5);
    const tagPOINT pixel = {10, 20};
    const DBLPOINT pair = {0.25, 0.75};
    const DRECT rectangle = {0.0, 1.0, 2.5, -3.0};

    const ZMillimeter millimeters(2.5);
    const ZMillimeter wrong("wide");
    const ZCentimeter centimeters(0.1);
    const ZInch inches(1.0);
    const ZEmbPoint points(254.0);
    const ZSpi density(8.5);
    const ZMillimeterPerSec speed(3.0);
    const ZCentimeterPerSec fastSpeed(4.0);
    const ZSquareCentimeter area(12.0);
    const ZNumber number(42.0);
    const ZRealNumber realNumber(0.5);
    const ZHalfNumber halfNumber(1.5);
    const ZPercent percent(50.0);
    const ZDegree degrees(-90.0);

    ZGUIDWrapper shape;
    shape.setBead1();
    const ZGUIDWrapper noShape(0);
    const GUID guid = {0x01234567, 0x89ab, 0xcdef, {0, 1, 2, 3, 4, 5, 6, 7}};

    const SigUInt zero;
    const SigUInt billions(12345678901234567890ULL);
    const SigUInt large = SigUInt(1) << 200;
    const SigUInt huge = SigUInt(1) << 100000;
    Raw<SigUInt> garbage(0xA5);
    Raw<SigUInt> astray;
    astray.object.size_ = astray.object.room_ = 3;
    astray.object.limbs_ = reinterpret_cast<unsigned long long*>(16);
    everythingIsThere(&shape);
}

} // namespace

int main() {
    showText();
    showArrays();
    showLists();
    showValues();
}
