#pragma once

#include <QByteArray>
#include <QtEndian>

/// Reads numbers from bytes that may end anywhere: beyond their end everything is 0.
class ByteReader
{
public:
    /// Does not copy the bytes, which have to outlive the reader.
    explicit ByteReader(const QByteArray &bytes) : m_bytes(bytes) {}

    bool has(qint64 place, qint64 length) const
    {
        return place >= 0 && length >= 0 && place <= m_bytes.size() - length;
    }

    quint8 byte(qint64 place) const { return has(place, 1) ? quint8(m_bytes.at(int(place))) : 0; }

    /// A number with its lowest byte first.
    template <class Number>
    Number little(qint64 place) const
    {
        return has(place, sizeof(Number)) ? qFromLittleEndian<Number>(m_bytes.constData() + place) : 0;
    }

    /// A number with its highest byte first.
    template <class Number>
    Number big(qint64 place) const
    {
        return has(place, sizeof(Number)) ? qFromBigEndian<Number>(m_bytes.constData() + place) : 0;
    }

private:
    const QByteArray &m_bytes;
};
