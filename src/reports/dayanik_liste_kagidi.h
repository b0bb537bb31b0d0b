#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"

#include <QString>
#include <QStringList>

// The paper of the unit lists: TMY-8 and the unit consumption list (Hangi
// "D", "T"), and the list of Dayanak2.
namespace DayanikListesi {

RaporKagidi Kagit(const RaporSuzgeci& s, const QString& hangi);
RaporKagidi Kagit2();

// The labels of the header block, its "Ölçü Birimi" with two blanks before.
const QStringList& Etiketler();

}
