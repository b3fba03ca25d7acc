#include "qt_network.h"

#include <QApplication>
#include <QEventLoop>
#include <QNetworkReply>
#include <QSaveFile>
#include <QTimer>

#include "qt_text.h"

namespace swiftroll::ui {
namespace {

/// More than any list of versions; a server that never ends does not fill the disk.
constexpr qint64 kMostBytes = 16 << 20;
constexpr int kGlanceMilliseconds = 20;

bool HasAnswer(const QNetworkReply& reply) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    return reply.error() == QNetworkReply::NoError && status >= 200 && status < 300;
}

}  // namespace

void QtNetwork::Download(TextView address, TextView localFile) {
    if (presenter_ == nullptr || presenter_->Main().bEnded) return;
    if (!manager_) manager_ = std::make_unique<QNetworkAccessManager>();
    frmMain& main = presenter_->Main();
    QNetworkRequest request{QUrl(ToQt(address))};
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    const std::unique_ptr<QNetworkReply> reply(manager_->get(request));
    QByteArray content;
    QEventLoop loop;
    QTimer glance;
    main.bAbort = false;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, [&] {
        content += reply->readAll();
        if (content.size() > kMostBytes) reply->abort();
    });
    QObject::connect(&glance, &QTimer::timeout, &loop, [&] {
        if (main.bAbort || main.bEnded) reply->abort();
    });
    glance.start(kGlanceMilliseconds);
    presenter_->Refresh();
    if (!reply->isFinished()) loop.exec();
    if (main.bEnded) throw ProgramEnd{};
    content += reply->readAll();
    // Only a whole answer takes the place of the former copy.
    if (!HasAnswer(*reply)) return;
    QSaveFile file(EditableToQt(localFile));
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size()) file.commit();
}

}  // namespace swiftroll::ui
