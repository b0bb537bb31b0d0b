#pragma once

#include <QDate>

// The one clock of the program. The working-month question and the monthly
// safety copy read today's date from here, so tests can fix it.
namespace Saat {
QDate Bugun();
void Ayarla(const QDate& gun);  // an invalid date goes back to the real clock
}
