#pragma once

#include <QList>
#include <QString>

namespace zentor {

struct Document;

// The person's name as the exports show it: first and last name, trimmed.
QString PersonName(const Document& doc);

// One line of the contacts; `href` is empty when it links nowhere.
struct ContactLine {
    QString text;
    QString href;
};

// The filled contact lines in order: phone, e-mail (a mailto: link), web site (a link),
// address with post code; links as the players make them (show::ContactLink).
QList<ContactLine> ContactLines(const Document& doc);

} // namespace zentor
