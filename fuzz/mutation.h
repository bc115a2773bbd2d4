#pragma once

#include <QByteArray>
#include <QRandomGenerator>

/// The bytes with a few small faults in them: changed, lost and repeated bytes, or the end cut off.
QByteArray mutated(QByteArray bytes, QRandomGenerator &random);
