#pragma once

#include <QString>
#include <QVariant>
#include <optional>

// Number formats and number-to-text conversions as the Basic run-time does
// them under a Turkish regional setting: ',' is the decimal sign and '.' the
// thousands separator, in what is read as well as in what is written.

// The run-time's Format for numeric patterns. In the pattern '#' is a digit
// that may be left out, '0' a digit that is always written, '.' the decimal
// placeholder, and ',' (once a placeholder or '.' has been seen) switches on
// grouping by three; other characters are copied as they stand. Sections,
// escapes, exponents, percent and scaling commas are not handled: no pattern
// of the program uses them.
// Numbers are rounded half away from zero at the last decimal placeholder,
// on their fifteen digit decimal form, so 1.005 with "0.00" gives "1,01".
// A negative number keeps its sign even when it rounds to zero ("-0,00"), as
// the run-time does. A text is read as a Turkish number ("1.234,5", "1,5E+3",
// blanks around it); a text that is not a number comes back as it is, the
// empty text included. An empty QVariant formats as zero; other Qt types go
// through their text.
QString Format(const QVariant& deger, const QString& desen);

// A number as the run-time writes it when it turns it into text (CStr or an
// implicit conversion): at most fifteen significant digits, no trailing
// zeros, ',' as the decimal sign, no grouping, and the exponent form
// ("1E+15", "1,5E-05") from 1E+15 up and below 0,0001.
QString SayiMetni(double deger);
// Numbers as above, texts as they are.
QString SayiMetni(const QVariant& deger);

// The number a value stands for: numbers as they are, an empty QVariant as 0,
// texts read as Turkish numbers. Nothing for a text that is not a number.
std::optional<double> SayiDegeri(const QVariant& deger);

// Upper case by the Turkish rules: i becomes İ, ı becomes I.
QString BuyukHarf(const QString& metin);
