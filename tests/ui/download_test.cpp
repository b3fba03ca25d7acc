// The list of versions over a real connection.
#include <QTcpServer>
#include <QTcpSocket>
#include <QTreeWidget>

#include "text/literal.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

/// Answers every request with the same bytes, and then closes the connection or leaves it waiting.
class Server : public QTcpServer {
  public:
    Server(QByteArray answer, bool closes) {
        listen(QHostAddress::LocalHost);
        QObject::connect(this, &QTcpServer::newConnection, [this, answer, closes] {
            QTcpSocket* socket = nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, [socket, answer, closes] {
                socket->readAll();
                socket->write(answer);
                if (closes) socket->disconnectFromHost();
            });
        });
    }
    Text Site() const { return "http://127.0.0.1:" + std::to_string(serverPort()); }
    Text Address() const { return Site() + "/Updates.ini"; }
};

QByteArray Answer(const QByteArray& content, const QByteArray& status = "200 OK", qsizetype length = -1) {
    return "HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " +
           QByteArray::number(length < 0 ? content.size() : length) + "\r\n\r\n" + content;
}

class Download : public WindowTest {
  protected:
    void Fetch(const Server& server) {
        program_->ThePresenter().Act(
            [&] { Main().ports.network.Download(server.Address(), ui::FromQt(Local())); });
    }
    /// Checks at a site, as the button at the corner of the window does.
    void Check(const Server& server) {
        Main().sWebAddress = server.Site();
        Click("PicturepicKeepUpdated");
    }
    QDialog& Versions() { return Find<QDialog>("frmUpdates"); }
    QTreeWidget& Tree() { return Find<QTreeWidget>("tvwUpdates"); }
    QString Local() const { return Path(QStringLiteral("Updates.ini")); }
    QByteArray Content() const {
        QFile file(Local());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
};

TEST_F(Download, OnlyAWholeAnswerTakesThePlaceOfTheFormerCopy) {
    Start();
    const QByteArray list = "[-SwiftRoll]\r\nVERS_00=a\r\n";
    Fetch(Server(Answer(list), true));
    EXPECT_EQ(Content(), list);
    Fetch(Server(Answer("not found", "404 Not Found"), true));
    EXPECT_EQ(Content(), list) << "missing";
    Fetch(Server(Answer("[cut", "200 OK", 1000), true));
    EXPECT_EQ(Content(), list) << "cut off";
    Fetch(Server(Answer(QByteArray(20 << 20, 'x')), true));
    EXPECT_EQ(Content(), list) << "huge";
    Fetch(Server("no HTTP at all\r\n\r\n", true));
    EXPECT_EQ(Content(), list) << "garbage";
}

TEST_F(Download, HostileListsAreShownOrReported) {
    Start();
    const auto check = [&](const QByteArray& list) {
        Check(Server(Answer("[-SwiftRoll]\r\n" + list), true));
    };
    check("VERS_00=a\r\n[a]\r\nDESCR=\x01\x02\x7F <b>x</b>\xFF\r\n");
    EXPECT_EQ(Tree().topLevelItemCount(), 2);
    OnBox(QMessageBox::Ok);
    check("VERS_00=Root\r\n");
    EXPECT_EQ(Tree().topLevelItemCount(), 1) << "as far as it came";
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].startsWith(QStringLiteral("457: ")));
}

TEST_F(Download, ACheckThatFailsIsToldInItsWindowWhichEscapeCloses) {
    Start();
    OnDialog([this](QWidget& box) {
        EXPECT_EQ(box.parentWidget(), &Versions()) << "whose window has the keyboard again";
        QTest::keyClick(&box, Qt::Key_Return);
    });
    Check(Server(Answer("not found", "404 Not Found"), true));
    ASSERT_TRUE(Versions().isVisible());
    ASSERT_EQ(Tree().topLevelItemCount(), 1);
    EXPECT_EQ(Tree().topLevelItem(0)->child(0)->text(0), boxes.at(0).section(QStringLiteral("\r\n"), 0, 0));
    EXPECT_EQ(Main().pnlMessage.Get(), "Vérification impossible."_t);
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton);
    QTest::keyClick(&Tree(), Qt::Key_Escape);
    EXPECT_FALSE(Versions().isVisible());
    EXPECT_FALSE(Main().bAbort) << "it was meant for the window of the versions";
}

TEST_F(Download, TheWindowOfTheVersionsWaitsNoLongerThanItsUser) {
    Start();
    Qt::CursorShape pointer{};
    QTimer::singleShot(200, &Window(), [&] {
        pointer = Tree().viewport()->cursor().shape();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    OnBox(QMessageBox::Ok);
    Check(Server("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nslow", false));
    EXPECT_EQ(pointer, Qt::WaitCursor);
    EXPECT_EQ(Tree().viewport()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(Versions().isVisible());
}

TEST_F(Download, AStartThatChecksShowsTheWindowWhileItWaits) {
    Start();
    ShowTab(8);
    Click("chkCheckUpdates");
    Click("cmdExit");
    program_ = std::make_unique<ui::DesktopApplication>();
    const Server silent({}, false);
    Main().sWebAddress = silent.Site();
    bool wasVisible = false;
    QTimer::singleShot(300, qApp, [&] {
        wasVisible = Window().isVisible();
        QTest::keyClick(&Window(), Qt::Key_Escape);
    });
    OnBox(QMessageBox::Ok);
    Start();
    EXPECT_TRUE(wasVisible);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].startsWith(QStringLiteral("Pas de version trouvée")));
}

TEST_F(Download, TheEndOfTheProgramEndsTheWait) {
    Start();
    QTimer::singleShot(100, &Window(), [this] { Click("cmdExit"); });
    Fetch(Server("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nslow", false));
    EXPECT_TRUE(Main().bEnded);
}

}  // namespace
}  // namespace swiftroll::test
