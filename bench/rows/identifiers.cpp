#include "../rows.h"
#include "texts.h"

#include <zarnex/ids/ZGUIDWrapper.h>

#if BENCH_BOOST
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_generators.hpp>
#include <boost/uuid/uuid_io.hpp>
#endif
#if BENCH_QT
#include <QtCore/QUuid>
#endif

#include <cstdio>
#include <cstring>
#include <random>

namespace bench {

namespace {

GUID guid(std::size_t seed) {
    std::mt19937 random(static_cast<unsigned>(seed));
    GUID made;
    unsigned words[4] = {static_cast<unsigned>(random()), static_cast<unsigned>(random()),
                         static_cast<unsigned>(random()), static_cast<unsigned>(random())};
    static_assert(sizeof words == sizeof made);
    std::memcpy(&made, words, sizeof made);
    return made;
}

std::string textOf(const GUID& guid) {
    char text[37];
    const auto& end = guid.Data4;
    std::snprintf(text, sizeof text, "%08x-%04x-%04x-%02x%02x-%02x%02x%02x%02x%02x%02x",
                  unsigned(guid.Data1), guid.Data2, guid.Data3, end[0], end[1], end[2], end[3],
                  end[4], end[5], end[6], end[7]);
    return text;
}

bool readByScanning(const char* text, GUID& guid) {
    auto& end = guid.Data4;
    unsigned data1 = 0;
    const int count = std::sscanf(text, "%8x-%4hx-%4hx-%2hhx%2hhx-%2hhx%2hhx%2hhx%2hhx%2hhx%2hhx",
                                  &data1, &guid.Data2, &guid.Data3, &end[0], &end[1], &end[2],
                                  &end[3], &end[4], &end[5], &end[6], &end[7]);
    guid.Data1 = data1;
    return count == 11;
}

std::string text(std::size_t seed) {
    return textOf(guid(seed));
}

#if BENCH_BOOST
boost::uuids::uuid boostId(std::size_t seed) {
    return boost::uuids::string_generator()(text(seed));
}
#endif
#if BENCH_QT
QUuid qtId(std::size_t seed) {
    return QUuid::fromString(QLatin1String(text(seed).c_str()));
}
#endif

void toTextRow(Suite& suite) {
    suite.row(
        "to text", 1.0,
        "An identifier of given 128 bits, with its text of 36 characters. Beside it stand texts "
        "in units of one and two bytes; the library's have four here.",
        [](Row& row, const auto& measure) {
            Pool<GUID> guids(poolSize, guid);
            row.ours([=] {
                const ZGUIDWrapper id(guids.next());
                keep(id);
                return id.getString()[8];
            });
#if BENCH_BOOST
            Pool<boost::uuids::uuid> boost(poolSize, boostId);
            row.beside("Boost", [=] {
                const std::string text = boost::uuids::to_string(boost.next());
                keep(text);
                return text[8];
            });
            row.peer("Boost, wide", [=] {
                const std::wstring text = boost::uuids::to_wstring(boost.next());
                keep(text);
                return text[8];
            });
#endif
#if BENCH_QT
            Pool<QUuid> qt(poolSize, qtId);
            row.beside("Qt", [=] {
                const QString text = qt.next().toString(QUuid::WithoutBraces);
                keep(text);
                return text[8].unicode();
            });
#endif
            row.beside("std::snprintf", [=] {
                const std::string text = textOf(guids.next());
                keep(text);
                return text[8];
            });
            measure();
        });
}

void fromTextRow(Suite& suite) {
    suite.row("from text", 1.0,
              "36 characters into an object in use, which keeps its text beside the number.",
              [](Row& row, const auto& measure) {
                  Pool<ZString> texts(poolSize,
                                      [](std::size_t i) { return ZString(text(i).c_str()); });
                  ZGUIDWrapper used;
                  row.ours([=, &used] {
                      used.setString(&texts.next());
                      keep(used);
                      return used.isValid();
                  });
                  Pool<std::string> narrow(poolSize, text);
#if BENCH_BOOST
                  Pool<std::wstring> wide(
                      poolSize, [](std::size_t i) { return widened<std::wstring>(text(i)); });
                  row.peer("Boost", [=] {
                      const boost::uuids::uuid id = boost::uuids::string_generator()(wide.next());
                      keep(id);
                      return !id.is_nil();
                  });
#endif
#if BENCH_QT
                  Pool<QString> qt(poolSize,
                                   [](std::size_t i) { return QString::fromStdString(text(i)); });
                  row.peer("Qt", [=] {
                      const QUuid id = QUuid::fromString(qt.next());
                      keep(id);
                      return !id.isNull();
                  });
#endif
                  row.beside("std::sscanf", [=] {
                      GUID id;
                      const bool isRead = readByScanning(narrow.next().c_str(), id);
                      keep(id);
                      return isRead;
                  });
                  measure();
              });
}

template <class Id>
int equalPairs(const std::vector<Id>& ids) {
    int equal = 0;
    for (const Id& a : ids) {
        for (const Id& b : ids)
            equal += a == b;
    }
    return equal;
}

void compareRow(Suite& suite) {
    suite.row("compare", 1.0, "Each of 64 with each, by ==; per comparison.",
              [](Row& row, const auto& measure) {
                  row.per(poolSize * poolSize);
                  row.why("Each comparison asks whether both are valid; the peers' identifiers "
                          "always are.");
                  std::vector<ZGUIDWrapper> ours;
                  for (std::size_t i = 0; i < poolSize; ++i)
                      ours.emplace_back(guid(i));
                  row.ours([=] { return equalPairs(ours); });
#if BENCH_BOOST
                  std::vector<boost::uuids::uuid> boost;
                  for (std::size_t i = 0; i < poolSize; ++i)
                      boost.push_back(boostId(i));
                  row.peer("Boost", [=] { return equalPairs(boost); });
#endif
#if BENCH_QT
                  std::vector<QUuid> qt;
                  for (std::size_t i = 0; i < poolSize; ++i)
                      qt.push_back(qtId(i));
                  row.peer("Qt", [=] { return equalPairs(qt); });
#endif
                  measure();
              });
}

void newRow(Suite& suite) {
    suite.row("new", 1.0,
              "A random identifier. The library's comes with its text; \"as text\" has one too.",
              [](Row& row, const auto& measure) {
                  row.ours([] {
                      const ZGUIDWrapper id;
                      keep(id);
                      return id.isValid();
                  });
#if BENCH_BOOST
                  row.peer("Boost", [make = std::make_shared<boost::uuids::random_generator>()] {
                      const boost::uuids::uuid id = (*make)();
                      keep(id);
                      return !id.is_nil();
                  });
                  row.beside("Boost, by a twister", [] {
                      static boost::uuids::random_generator_mt19937 make;
                      const boost::uuids::uuid id = make();
                      keep(id);
                      return !id.is_nil();
                  });
#endif
#if BENCH_QT
                  row.peer("Qt", [] {
                      const QUuid id = QUuid::createUuid();
                      keep(id);
                      return !id.isNull();
                  });
                  row.peer("Qt, as text", [] {
                      const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
                      keep(id);
                      return id[8] == QLatin1Char('-');
                  });
#endif
                  measure();
              });
}

} // namespace

void identifierRows(Suite& suite) {
    suite.topic("identifiers");
    toTextRow(suite);
    fromTextRow(suite);
    compareRow(suite);
    newRow(suite);
}

} // namespace bench
