#pragma once

class QComboBox;
class QLineEdit;

// Selects the whole text so that the first key replaces it.
void MetinSec(QLineEdit* kutu);
void MetinSec(QComboBox* kutu);
