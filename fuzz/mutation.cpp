#include "fuzz/mutation.h"

namespace
{
constexpr int mostFaults = 4;
constexpr int longestRepetition = 32;

/// Values at which sizes and counters tip over.
constexpr char edges[] = {0, 1, 0x7f, char(0x80), char(0xfe), char(0xff)};

void addFault(QByteArray &bytes, QRandomGenerator &random)
{
    if (bytes.isEmpty())
        return;
    const int place = random.bounded(bytes.size());
    switch (random.bounded(6)) {
    case 0:
        bytes[place] = edges[random.bounded(int(sizeof edges))];
        break;
    case 1:
        bytes.remove(place, 1 + random.bounded(longestRepetition));
        break;
    case 2:
        bytes.insert(place, bytes.mid(place, 1 + random.bounded(longestRepetition)));
        break;
    case 3:
        bytes.truncate(place);
        break;
    default:
        bytes[place] = char(random.bounded(256));
    }
}
} // namespace

QByteArray mutated(QByteArray bytes, QRandomGenerator &random)
{
    for (int faults = 1 + random.bounded(mostFaults); faults > 0; --faults)
        addFault(bytes, random);
    return bytes;
}
