// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include <cameras/cameraopening.h>
#include <platform/parametercollection/iparameter.h>

#include <support/playedcamera.h>
#include <support/table.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <utility>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // its header comes with clang alone
#endif

using namespace Cameras;
using Datagrams = QList<QByteArray>;

namespace {

// Most of the time is spent waiting for cameras that do not answer, so several processes wait at a time.
// Which of them this is, is told by the environment; without it all cameras are tried one after the other.
constexpr int drawnManners = 32; // unless ZELTO_ODD_CAMERAS says how many
constexpr int shareCount = 8;
const char *const shareVariable = "ZELTO_ODD_CAMERAS_SHARE";

int share()
{
    bool isSet = false;
    const int number = qEnvironmentVariableIntValue(shareVariable, &isSet);
    return isSet ? number : -1;
}

int runShares(const QString &program)
{
    QProcess processes[shareCount];
    for (int number = 0; number < shareCount; ++number) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(shareVariable, QString::number(number));
        processes[number].setProcessEnvironment(environment);
        processes[number].setProcessChannelMode(QProcess::MergedChannels);
        processes[number].start(program, QStringList());
    }
    int failures = 0;
    for (QProcess &process : processes) {
        const bool hasPassed = process.waitForFinished(250'000)
            && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        const QByteArray output = process.readAll();
        std::fwrite(output.constData(), 1, size_t(output.size()), stdout);
        // The engine's complaints are none of the user's business: they go to the log.
        failures += hasPassed && !output.contains("-CRITICAL **") ? 0 : 1;
    }
    return failures;
}

qint64 residentBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return qint64(__sanitizer_get_current_allocated_bytes()); // it keeps what was freed
#else
    QFile file("/proc/self/statm");
    return file.open(QFile::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * 4096 : 0;
#endif
}

QByteArray withStatus(QByteArray answer, quint16 status)
{
    answer[0] = char(status >> 8);
    answer[1] = char(status & 0xff);
    return answer.left(8);
}

bool isRead(const QByteArray &request)
{
    return PlayedCamera::command(request) == 0x0080 || PlayedCamera::command(request) == 0x0084;
}

bool reads(const QByteArray &request, quint32 address)
{
    return isRead(request) && PlayedCamera::address(request) == address;
}

/*! \brief Makes the same mistakes each time that it is played: those that its seed has drawn. */
class DrawnManner
{
public:
    explicit DrawnManner(quint32 seed)
        : m_random(seed)
        , m_rarity(m_random.bounded(1, 6))
        , m_target(m_random.bounded(5))
    {
        for (int count = m_random.bounded(1, 4); count > 0; --count) {
            m_mistakes.append(m_random.bounded(mistakeCount));
        }
    }

    Datagrams answer(const QByteArray &request, const QByteArray &right)
    {
        const QByteArray before = std::exchange(m_before, right);
        if (PlayedCamera::command(request) == 0x0002 || !isTarget(request)
            || m_random.bounded(m_rarity) > 0) {
            return {right};
        }
        Datagrams answers{right};
        for (const int mistake : std::as_const(m_mistakes)) {
            make(mistake, request, before, answers);
        }
        return answers;
    }

private:
    static constexpr int mistakeCount = 12;

    bool isTarget(const QByteArray &request) const
    {
        const quint32 address = PlayedCamera::address(request);
        switch (m_target) {
        case 0:
            return isRead(request);
        case 1:
            return !isRead(request);
        case 2:
            return address >= 0x10000; // the description
        case 3:
            return address >= 0x8000 && address < 0x10000; // features
        default:
            return true;
        }
    }

    void make(int mistake, const QByteArray &request, const QByteArray &before, Datagrams &answers)
    {
        if (answers.isEmpty() || answers.last().size() < 8) {
            return;
        }
        QByteArray &last = answers.last();
        const QByteArray id = request.mid(6, 2);
        switch (mistake) {
        case 0:
            last.truncate(m_random.bounded(int(last.size())));
            break;
        case 1:
            last.append(QByteArray(m_random.bounded(1, 500), char(m_random.bounded(256))));
            break;
        case 2:
            answers.append(Datagrams(m_random.bounded(1, 5), last));
            break;
        case 3:
            QThread::msleep(ulong(m_random.bounded(250)));
            break;
        case 4:
            answers.clear();
            break;
        case 5:
            last = withStatus(last, quint16(0x8000 + m_random.bounded(0x10)));
            break;
        case 6:
            last[6] = char(m_random.bounded(256));
            break;
        case 7:
            last[3] = char(m_random.bounded(256));
            break;
        case 8:
            answers.prepend(QByteArray::fromHex("000000890004") + id + QByteArray::fromHex("0000")
                            + QByteArray(1, char(m_random.bounded(8))) + '\xff');
            break;
        case 9:
            last[m_random.bounded(int(last.size()))] = char(m_random.bounded(256));
            break;
        case 10:
            answers = Datagrams(m_random.bounded(1, 200), before) + answers;
            break;
        default:
            last = before.left(6) + id + before.mid(8);
            break;
        }
    }

    QRandomGenerator m_random;
    int m_rarity; // of what could be wrong, one in so many is
    int m_target;
    QList<int> m_mistakes;
    QByteArray m_before;
};

PlayedCamera::Manner drawn(quint32 seed)
{
    return
        [manner = std::make_shared<DrawnManner>(seed)](const QByteArray &request, const QByteArray &answer) {
            return manner->answer(request, answer);
        };
}

} // namespace

/* Cameras that do not keep to the protocol. */
class TestOddCameras : public QObject
{
    Q_OBJECT

private slots:
    void doNoHarm_data();
    void doNoHarm();

private:
    void use(Camera &camera, bool tellsTheTruth);
};

void TestOddCameras::doNoHarm_data()
{
    columns<PlayedCamera::Manner, bool>({"manner", "tellsTheTruth"});
    int count = 0;
    const auto odd = [&count](const char *name, const PlayedCamera::Manner &manner,
                              bool tellsTheTruth = true) {
        if (count++ % shareCount == share() % shareCount || share() < 0) {
            row(name, manner, tellsTheTruth);
        }
    };
    odd("short answers", [](const QByteArray &request, const QByteArray &answer) {
        return Datagrams{isRead(request) ? answer.chopped(4) : answer};
    });
    odd("long answers", [](const QByteArray &request, const QByteArray &answer) {
        return Datagrams{isRead(request) ? answer + "12345678" : answer};
    });
    odd("crumbs", [](const QByteArray &, const QByteArray &answer) {
        return Datagrams{"", answer.left(3), answer.left(8)};
    });
    odd("doubled answers", [](const QByteArray &, const QByteArray &answer) {
        return Datagrams{answer, answer, answer};
    });
    odd("late answers", [](const QByteArray &request, const QByteArray &answer) {
        QThread::msleep(PlayedCamera::command(request) == 0x0002 ? 0 : 250);
        return Datagrams{answer};
    });
    odd("flood", [](const QByteArray &, const QByteArray &answer) {
        QByteArray foreign = answer;
        foreign[6] = char(foreign[6] ^ 0x40); // the answer to something else
        return Datagrams(300, foreign) << answer;
    });
    odd("answers to other commands", [](const QByteArray &, QByteArray answer) {
        answer[3] = char(answer[3] ^ 0x10);
        return Datagrams{answer};
    });
    odd("asks for patience for ever", [](const QByteArray &request, const QByteArray &answer) {
        return isRead(request) ? Datagrams{QByteArray::fromHex("000000890004") + request.mid(6, 2)
                                           + QByteArray::fromHex("0000ffff")}
                               : Datagrams{answer};
    });
    odd("refuses one register", [](const QByteArray &request, const QByteArray &answer) {
        return Datagrams{reads(request, 0x8000) ? withStatus(answer, 0x8006) : answer};
    });
    odd("refuses its description", [](const QByteArray &request, const QByteArray &answer) {
        return Datagrams{reads(request, 0x10000) ? withStatus(answer, 0x8003) : answer};
    });
    odd("refuses everything", [](const QByteArray &request, const QByteArray &answer) {
        return Datagrams{PlayedCamera::command(request) == 0x0002 ? answer : withStatus(answer, 0x8fff)};
    });
    odd("description is cut off", [](const QByteArray &request, QByteArray answer) {
        return Datagrams{reads(request, 0x10000) ? answer.replace("<Category", QByteArray(9, '\0')) : answer};
    });
    odd("description is of no length", [](const QByteArray &request, QByteArray answer) {
        return Datagrams{reads(request, 0x0200) ? answer.replace(";10000;", ";10000;-") : answer};
    });
    odd("description is larger than the camera", [](const QByteArray &request, QByteArray answer) {
        return Datagrams{reads(request, 0x0200) ? answer.replace(";10000;", ";10000;7fff") : answer};
    });
    odd("description is elsewhere", [](const QByteArray &request, QByteArray answer) {
        return Datagrams{reads(request, 0x0200) ? answer.replace("Local:camera.xml;", "File:/dev/zero?;;")
                                                : answer};
    });
    odd("description changes", [](const QByteArray &request, QByteArray answer) {
        static int count = 0;
        const bool isOther = reads(request, 0x10000) && ++count % 2 == 0;
        return Datagrams{isOther ? answer.replace("Zelto", "Other") : answer};
    });
    bool isSet = false;
    const int wanted = qEnvironmentVariableIntValue("ZELTO_ODD_CAMERAS", &isSet);
    for (int seed = 0; seed < (isSet ? wanted : drawnManners); ++seed) {
        odd(qPrintable(QString("seed %1").arg(seed)), drawn(quint32(seed)), false);
    }
}

// Changes what there is to be changed.
void TestOddCameras::use(Camera &camera, bool tellsTheTruth)
{
    const auto collection = camera.nodeMaps().first().collection;
    const auto width = collection->parameter("Width");
    try {
        width->setValueFromString("641");
    } catch (const std::exception &exception) {
        QVERIFY(!QByteArray(exception.what()).contains('\n'));
    }
    collection->refresh();
    QTest::qWait(300);
    const auto data = width->parameterData();
    QVERIFY2(!tellsTheTruth || !data->isReadable || data->valueString == "641" || data->valueString == "640",
             qPrintable(data->valueString));
}

void TestOddCameras::doNoHarm()
{
    QFETCH(PlayedCamera::Manner, manner);
    QFETCH(bool, tellsTheTruth);
    const QString address = QString("127.0.0.%1").arg(share() + 2); // each process has its own
    PlayedCamera played("ZPLAYED", PlayedCamera::description(), QHostAddress(address));
    if (!played.isRunning()) {
        QSKIP("the port is in use");
    }
    const qint64 before = residentBytes();
    played.setManner(manner);
    auto opening = Camera::openLiveAsync(address);
    QSignalSpy opened(opening.get(), SIGNAL(opened()));
    QSignalSpy failed(opening.get(), SIGNAL(failed(QString)));
    QElapsedTimer timer;
    timer.start();
    const bool hasEnded = QTest::qWaitFor([&] { return !opened.isEmpty() || !failed.isEmpty(); }, 2500);
    if (const auto camera = opening->takeCamera()) {
        use(*camera, tellsTheTruth);
    } else if (hasEnded) {
        const QString reason = failed.first().first().toString();
        QVERIFY(reason.startsWith("Cannot open the camera " + address + ": ") && !reason.contains(u'\n'));
    }
    timer.restart();
    opening.reset();
    QVERIFY(timer.elapsed() < 100);

    played.setManner({});
    opening = Camera::openLiveAsync(address);
    QSignalSpy openedNow(opening.get(), SIGNAL(opened()));
    QVERIFY(openedNow.wait(30000));
    QCOMPARE(opening->takeCamera()
                 ->nodeMaps()
                 .first()
                 .collection->parameter("Height")
                 ->parameterData()
                 ->valueString,
             "480");
    QVERIFY2(residentBytes() - before < 30'000'000, qPrintable(QString::number(residentBytes() - before)));
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (share() < 0 && argc == 1) {
        return runShares(QCoreApplication::applicationFilePath());
    }
    TestOddCameras test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_oddcameras.moc"
