#pragma once

// Store tracking of depo_takip.h and its paper (depo_takip_kagidi.h) on the
// panel of the handover minutes (devir_teslim_ekrani.h).

#include "devir_teslim_ekrani.h"

// Store tracking: what came in, went out, is in use and is left in the
// store, by description.
class DepoTakip : public OzellikEkrani
{
    Q_OBJECT

public:
    explicit DepoTakip(const CalismaBaglami& baglam, QWidget* parent = nullptr);

protected:
    RaporTablosu Hesapla(const RaporSuzgeci& s, bool biteniGoster) override;
    RaporKagidi Kagit() const override;
};
