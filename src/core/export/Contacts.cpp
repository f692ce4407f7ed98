#include "export/Contacts.h"

#include "model/Document.h"
#include "show/HomeLayout.h"

namespace zentor {

QString PersonName(const Document& doc) {
    return (doc.Profile.FirstName.trimNull() + QLatin1Char(' ') + doc.Profile.LastName.trimNull())
        .trimmed();
}

namespace {

// Where a contact links, by the players' rule.
QString LinkOf(show::ContactKind kind, const QString& text) {
    return QString::fromStdString(show::ContactLink(kind, text.toStdString()));
}

} // namespace

QList<ContactLine> ContactLines(const Document& doc) {
    const ProfileRecord& pr = doc.Profile;
    const QString email = pr.Email.trimNull();
    const QString site = pr.Website.trimNull();
    QList<ContactLine> lines;
    for (const ContactLine& line :
         {ContactLine{pr.Phone.trimNull(), {}},
          ContactLine{email, LinkOf(show::ContactKind::Email, email)},
          ContactLine{site, LinkOf(show::ContactKind::Website, site)},
          ContactLine{(pr.Address.trimNull() + QLatin1Char(' ') + pr.PostCode.trimNull()).trimmed(),
                      {}}})
        if (!line.text.isEmpty())
            lines.append(line);
    return lines;
}

} // namespace zentor
