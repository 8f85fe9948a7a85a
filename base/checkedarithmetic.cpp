// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "base/checkedarithmetic.h"

#include <QString>
#include <QtNumeric>

namespace ferrin {

namespace {

[[noreturn]] Q_DECL_COLD_FUNCTION void overflow(qint64 left, char operation, qint64 right)
{
    qFatal("Integer overflow: %lld %c %lld", left, operation, right);
}

} // namespace

qint64 checkedAdd(qint64 left, qint64 right)
{
    qint64 result = 0;
    if (qAddOverflow(left, right, &result))
        overflow(left, '+', right);
    return result;
}

qint64 checkedSubtract(qint64 left, qint64 right)
{
    qint64 result = 0;
    if (qSubOverflow(left, right, &result))
        overflow(left, '-', right);
    return result;
}

qint64 checkedMultiply(qint64 left, qint64 right)
{
    qint64 result = 0;
    if (qMulOverflow(left, right, &result))
        overflow(left, '*', right);
    return result;
}

qint64 checkedInteger(float value)
{
    // The bounds are exact in single precision; "not a number" fails both comparisons.
    if (!(value >= -0x1p63F && value < 0x1p63F))
        qFatal("Not a 64-bit integer: %s",
               qUtf8Printable(QString::number(static_cast<double>(value))));
    return static_cast<qint64>(value);
}

} // namespace ferrin
