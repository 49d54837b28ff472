#include "desktop/SiteSettingsDialog.h"

#include "desktop/Guard.h"
#include "desktop/QtPlatform.h"
#include "shell/Application.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace iceline::desktop {

namespace {

constexpr std::array<const char*, AllSiteSettings.size()> Captions{
    "League's &Name:", "Site's &Address:", "&Description:"};

} // namespace

SiteSettingsDialog::SiteSettingsDialog(Application& application, QWidget* parent)
    : QDialog(parent), app_(application), problem_(new QLabel(this)) {
    setObjectName(QStringLiteral("SiteSettings"));
    setWindowTitle(QStringLiteral("Web Site"));
    auto* form = new QFormLayout(this);
    const SiteSettings settings = readSiteSettings(app_.files());
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const SiteSetting& setting = AllSiteSettings[i];
        fields_[i] = new QLineEdit(toQt(settings.*setting.value), this);
        fields_[i]->setObjectName(toQt(setting.key));
        fields_[i]->setMinimumWidth(360);
        form->addRow(QLatin1String(Captions[i]), fields_[i]);
    }
    fields_[1]->setPlaceholderText(QStringLiteral("https://example.org/league/"));
    auto* what =
        new QLabel(QStringLiteral("With a name and an address the site has a feed of results, a map for "
                                  "search engines, and previews of links."),
                   this);
    for (QLabel* text : {what, problem_}) {
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        form->addRow(text);
    }
    problem_->setObjectName(QStringLiteral("Problem"));
    problem_->hide();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

void SiteSettingsDialog::accept() {
    SiteSettings settings;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const SiteSetting& setting = AllSiteSettings[i];
        settings.*setting.value = fromQt(fields_[i]->text().trimmed());
        if (const auto problem = settingProblem(setting.key, settings.*setting.value)) {
            problem_->setText(toQt("Not stored: " + *problem));
            problem_->show();
            fields_[i]->setFocus();
            return;
        }
    }
    if (guarded(this, [&] { changeSiteSettings(app_, settings); }))
        QDialog::accept();
}

} // namespace iceline::desktop
