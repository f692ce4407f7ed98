#include "export/Contacts.h"

#include "model/Document.h"

#include <QUrl>

namespace zentor {

QString PersonName(const Document& doc) {
    return (doc.Profile.FirstName.trimNull() + QLatin1Char(' ') + doc.Profile.LastName.trimNull())
        .trimmed();
}

QString WebsiteHref(const QString& website) {
    const QString site = website.trimmed();
    if (site.isEmpty())
        return QString();
    return QUrl(site).scheme().isEmpty() ? QStringLiteral("http://") + site : site;
}

QList<ContactLine> ContactLines(const Document& doc) {
    const ProfileRecord& pr = doc.Profile;
    const QString email = pr.Email.trimNull();
    const QString site = pr.Website.trimNull();
    QList<ContactLine> lines;
    for (const ContactLine& line :
         {ContactLine{pr.Phone.trimNull(), {}},
          ContactLine{email, email.isEmpty() ? QString() : QStringLiteral("mailto:") + email},
          ContactLine{site, WebsiteHref(site)},
          ContactLine{(pr.Address.trimNull() + QLatin1Char(' ') + pr.PostCode.trimNull()).trimmed(),
                      {}}})
        if (!line.text.isEmpty())
            lines.append(line);
    return lines;
}

} // namespace zentor
