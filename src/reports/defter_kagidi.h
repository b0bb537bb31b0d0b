#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"

#include <QStringList>

// The paper of both ledgers: the band with the period and the page number,
// the separators, the headings, and the rows with their Tab places.
namespace Defter {

// satirSayi is SatirSayi: the page ends when the line counter passes it.
RaporKagidi Kagit(const RaporSuzgeci& s, int satirSayi);

// The labels of the header block, with the ledgers' own blanks.
const QStringList& Etiketler();

}
