#pragma once

#include <QString>

class QCoreApplication;

// The program's name: the title of the messages that belong to no screen.
// (Not Qt's application display name, which the desktop would append to
// every window's caption.)
inline const QString ProgramAdi = QStringLiteral("Taşınır Mal Yönetimi");

// Loads Qt's own Turkish texts (print preview, file dialogs, standard
// buttons); false where the translation is not installed.
bool QtTurkcesiniYukle(QCoreApplication& uygulama);
