#include <zarnex/ids/ZGUIDWrapper.h>

#include <zarnex/platform/platform.h>

#include <cstddef>

using namespace zarnex::platform;

namespace {

constexpr GUID blank = {
    0x10de0300, 0x4c25, 0x4dd9, {0x9f, 0xa4, 0x2f, 0xa1, 0xc5, 0x95, 0x0e, 0x11}};
constexpr GUID bead1 = {
    0x85bd2cf9, 0x607f, 0x437e, {0x90, 0xf0, 0x76, 0x64, 0x18, 0x2b, 0x90, 0xfa}};
constexpr GUID bead2 = {
    0xf49c932e, 0x287c, 0x43fd, {0xaf, 0xe2, 0xf9, 0xb4, 0xcd, 0x39, 0xee, 0xbb}};
constexpr GUID sequin1 = {
    0xf00f717b, 0x6d41, 0x4078, {0x9a, 0x43, 0xa4, 0x3e, 0xe0, 0x0c, 0x3f, 0xd5}};
constexpr GUID sequin2 = {
    0x30a5db35, 0x1caa, 0x40b4, {0xa0, 0xd3, 0xd1, 0x82, 0x7f, 0x3d, 0x85, 0x9f}};
constexpr GUID sequin1Then2 = {
    0xb6e02b09, 0x5de8, 0x4868, {0xb0, 0xdd, 0x4d, 0x07, 0x46, 0x9e, 0xa4, 0x5f}};
constexpr GUID sequin2Then1 = {
    0x1dd96a50, 0xa33e, 0x4359, {0xbe, 0x3a, 0xae, 0x43, 0xc8, 0x9a, 0x12, 0xd4}};
constexpr GUID roundShape = {
    0x692c86b7, 0xcaa2, 0x4e07, {0xbb, 0x2c, 0x97, 0xed, 0x88, 0x62, 0xf1, 0xbb}};
constexpr GUID circle = {
    0x41117793, 0x7348, 0x476a, {0xbb, 0x08, 0xd4, 0xf0, 0xe6, 0x0a, 0x8d, 0x4a}};
constexpr GUID circleShape = {
    0xd282705d, 0xcae3, 0x4e36, {0x94, 0x5a, 0x99, 0x90, 0xc0, 0x06, 0x5c, 0x55}};

/// Whether any field of `a` is smaller than the same field of `b`.
bool isAnyFieldLess(const GUID& a, const GUID& b) {
    if (a.Data1 < b.Data1 || a.Data2 < b.Data2 || a.Data3 < b.Data3)
        return true;
    for (std::size_t i = 0; i < sizeof a.Data4; ++i) {
        if (a.Data4[i] < b.Data4[i])
            return true;
    }
    return false;
}

} // namespace

ZGUIDWrapper::ZGUIDWrapper(int create) : valid_(create) {
    if (create != 0)
        createGuid(guid_);
    updateString();
}

ZGUIDWrapper::ZGUIDWrapper(GUID& guid) : ZGUIDWrapper(std::as_const(guid)) {}

ZGUIDWrapper::ZGUIDWrapper(const GUID& guid) : guid_(guid), valid_(1) {
    updateString();
}

ZGUIDWrapper::ZGUIDWrapper(const ZString* text) : valid_(1) {
    setString(text);
}

ZGUIDWrapper::ZGUIDWrapper(const ZGUIDWrapper& other)
    : guid_(other.valid_ != 0 ? other.guid_ : GUID{}), valid_(other.valid_),
      text_(other.valid_ != 0 ? other.text_ : ZString()) {}

ZGUIDWrapper& ZGUIDWrapper::operator=(const ZGUIDWrapper& other) {
    valid_ = other.valid_;
    if (valid_ != 0) {
        guid_ = other.guid_;
        text_ = other.text_;
    }
    return *this;
}

ZGUIDWrapper::~ZGUIDWrapper() = default;

void ZGUIDWrapper::setString(const ZString* text) {
    if (text != nullptr)
        guidFromText(*text, guid_);
    updateString();
}

void ZGUIDWrapper::setValid(int valid) {
    valid_ = valid;
    updateString();
}

int ZGUIDWrapper::hash() const {
    return text_.hash();
}

int ZGUIDWrapper::operator<(const ZGUIDWrapper& other) const {
    if (valid_ == 0 || other.valid_ == 0)
        return other.valid_ != 0;
    return isAnyFieldLess(guid_, other.guid_);
}

int ZGUIDWrapper::operator>(const ZGUIDWrapper& other) const {
    return other < *this;
}

void ZGUIDWrapper::setBlank() {
    setShape(blank);
}

void ZGUIDWrapper::setBead1() {
    setShape(bead1);
}

void ZGUIDWrapper::setBead2() {
    setShape(bead2);
}

void ZGUIDWrapper::setSequin1() {
    setShape(sequin1);
}

void ZGUIDWrapper::setSequin2() {
    setShape(sequin2);
}

void ZGUIDWrapper::setSequin1_2() {
    setShape(sequin1Then2);
}

void ZGUIDWrapper::setSequin2_1() {
    setShape(sequin2Then1);
}

void ZGUIDWrapper::setRound() {
    setShape(roundShape);
}

void ZGUIDWrapper::setCircle() {
    setShape(circle);
}

void ZGUIDWrapper::setCircleShape() {
    setShape(circleShape);
}

int ZGUIDWrapper::isBlank() const {
    return isShape(blank);
}

int ZGUIDWrapper::isBead1() const {
    return isShape(bead1);
}

int ZGUIDWrapper::isBead2() const {
    return isShape(bead2);
}

int ZGUIDWrapper::isSequin1() const {
    return isShape(sequin1);
}

int ZGUIDWrapper::isSequin2() const {
    return isShape(sequin2);
}

int ZGUIDWrapper::isSequin1_2() const {
    return isShape(sequin1Then2);
}

int ZGUIDWrapper::isSequin2_1() const {
    return isShape(sequin2Then1);
}

int ZGUIDWrapper::isRound() const {
    return isShape(roundShape);
}

int ZGUIDWrapper::isCircle() const {
    return isShape(circle);
}

int ZGUIDWrapper::isCircleShape() const {
    return isShape(circleShape);
}

void ZGUIDWrapper::updateString() {
    wchar_t text[guidTextSize];
    if (valid_ == 0)
        text_ = L"";
    else if (guidToText(guid_, text))
        text_ = text;
}

void ZGUIDWrapper::setShape(const GUID& guid) {
    guid_ = guid;
    setValid(1);
}

int ZGUIDWrapper::isShape(const GUID& guid) const {
    return valid_ != 0 && isEqual(guid);
}

template class ZList<std::pair<ZString, ZGUIDWrapper>>;
