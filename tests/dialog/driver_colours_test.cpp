// SPDX-License-Identifier: MIT
// What a PPD says of its driver's colours, and the profiles that are read for it.
#include "dialog/page/colour_service.h"
#include "dialog/session/colour_management.h"
#include "dialog/session/driver_colours.h"
#include "tests/dialog/model_support.h"
#include "tests/support/private_bus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

#include <future>

namespace halvern {
namespace {

const QString kService = q("org.freedesktop.ColorManager");

// A colour service that knows the queue "Photo" and the screen at DP-1.
class FakeService : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        const QString first = call.arguments().value(0).toString();
        const QVariant answer = call.member() == q("Get") ? property(call.arguments().at(1).toString())
                                                          : found(call.member(), first);
        bus.send(answer.isValid() ? call.createReply(answer)
                                  : call.createErrorReply(QDBusError::Failed, q("nothing")));
        return true;
    }

    QString file = q("/first.icc");
    int asked = 0;

private:
    QVariant found(const QString& member, const QString& first)
    {
        if (member == q("GetDevicesByKind"))
            return QVariant::fromValue(
                QList<QDBusObjectPath>{QDBusObjectPath(q("/a")), QDBusObjectPath(q("/b"))});
        asked += member == q("FindDeviceById") ? 1 : 0;
        const bool isKnown = member == q("GetProfileForQualifiers") || first == q("cups-Photo");
        return isKnown ? QVariant::fromValue(QDBusObjectPath(q("/c"))) : QVariant();
    }

    QVariant property(const QString& name) const
    {
        const auto wrapped = [](const auto& value) {
            return QVariant::fromValue(QDBusVariant(QVariant::fromValue(value)));
        };
        if (name == q("Metadata"))
            return wrapped(QMap<QString, QString>{{q("XRANDR_name"), q("DP-1")}});
        if (name == q("Profiles"))
            return wrapped(QList<QDBusObjectPath>{QDBusObjectPath(q("/c"))});
        return wrapped(file);
    }
};

QByteArray modes(const char* device)
{
    return QByteArray("*PPD-Adobe: \"4.3\"\n*ColorDevice: ") + device +
           "\n*OpenUI *ColorModel/Color: PickOne\n*DefaultColorModel: RGB\n"
           "*ColorModel RGB/Color: \"<</cupsColorSpace 1/cupsBitsPerColor 8>>setpagedevice\"\n"
           "*ColorModel Mono/Mono: \"<</cupsColorSpace 3/cupsBitsPerColor 1>>setpagedevice\"\n"
           "*ColorModel Gray/Odd: \"<</cupsColorSpace 19>>setpagedevice\"\n"
           "*ColorModel Grayscale/By its name: \"\"\n"
           "*ColorModel Wide/Adobe: \"<</cupsColorSpace 20>>setpagedevice\"\n*CloseUI: *ColorModel\n";
}

} // namespace

TEST(DriverColours, ThePpdSaysWhatComesOutGray)
{
    const struct {
        const char* device;
        const char* mode;
        bool isGray;
        bool isWide;
    } cases[] = {
        {"True", "RGB", false, false},      {"True", "Mono", true, false}, {"True", "Gray", false, false},
        {"True", "Grayscale", true, false}, {"True", "Wide", false, true}, {"False", "RGB", true, false},
    };

    for (const auto& c : cases) {
        const std::unique_ptr<PpdModel> model = modelOf(modes(c.device));
        ASSERT_TRUE(model->change(q("ColorModel"), q(c.mode)).accepted);
        EXPECT_EQ(printsGray(*model), c.isGray) << c.device << c.mode;
        EXPECT_EQ(wantsAdobeRgb(*model), c.isWide) << c.mode;
        const ColourPlan plan = ColourManagement().planFor({}, model.get());
        EXPECT_EQ(!plan.target.isEmpty(), c.isWide) << "else sRGB";
    }
}

TEST(DriverColours, AProfileIsReadByTheWayAndTriedAgain)
{
    QTemporaryDir folder;
    ColourManagement colours;
    const ColourSettings settings{true, folder.filePath(q("paper.icc")), {}, true};
    int changes = 0;
    QObject::connect(&colours, &ColourManagement::changed, [&] { ++changes; });
    EXPECT_FALSE(colours.profileFor(settings, nullptr).isRead);
    EXPECT_TRUE(colours.isAsking());
    EXPECT_TRUE(waitUntil([&] { return changes == 1; }));
    EXPECT_TRUE(colours.profileFor(settings, nullptr).problem.contains(q("cannot be read")));
    EXPECT_FALSE(colours.whyNoProof(settings, nullptr).isEmpty());
    ASSERT_TRUE(QFile::copy(q("/usr/share/color/icc/ghostscript/default_cmyk.icc"), settings.profile));
    EXPECT_TRUE(waitUntil([&] { return colours.profileFor(settings, nullptr).problem.isEmpty(); }));
    EXPECT_EQ(changes, 2);

    colours.setProof({true, true, true});
    EXPECT_TRUE(colours.screenPlan(settings, nullptr).marksGamut);
    EXPECT_FALSE(colours.proofInWords(settings, nullptr).isEmpty());
    EXPECT_TRUE(colours.screenPlan({}, nullptr).changesNothing()) << "the printer converts";
    EXPECT_FALSE(colours.whyNoProof({}, nullptr).isEmpty());
}

TEST(ColourService, IsAskedOnceUntilItHasNews)
{
    PrivateBus bus;
    qDBusRegisterMetaType<QMap<QString, QString>>();
    QDBusConnection server =
        QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"), q("colours"));
    FakeService service;
    ASSERT_TRUE(server.registerService(kService));
    ASSERT_TRUE(server.registerVirtualObject(q("/"), &service, QDBusConnection::SubPath));
    const auto screen = [](const char* plug) {
        // The service answers in this thread.
        auto answer = std::async(std::launch::async, [=] {
            return servicesProfileForScreen({q(plug), {}, {}, false});
        });
        waitUntil([&] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
        return answer.get();
    };
    EXPECT_EQ(screen("DP-1"), service.file);
    EXPECT_EQ(screen("DP-2"), QString());

    ColourManagement colours;
    const std::unique_ptr<PpdModel> model = modelOf(modes("True"));
    const auto choose = [&](const char* queue) {
        colours.setQueue(q(queue));
        EXPECT_TRUE(waitUntil([&] { return !colours.isAsking(); }));
    };
    choose("Photo");
    EXPECT_EQ(colours.ownProfile(*model), service.file);
    choose("Other");
    EXPECT_EQ(colours.ownProfile(*model), QString());
    const int asked = service.asked;
    choose("Photo");
    EXPECT_EQ(service.asked, asked);
    service.file = q("/second.icc");
    server.send(QDBusMessage::createSignal(q("/b"), kService, q("DeviceChanged")));
    EXPECT_TRUE(waitUntil([&] { return colours.ownProfile(*model) == service.file; }));
    QDBusConnection::disconnectFromBus(q("colours"));
}

} // namespace halvern
