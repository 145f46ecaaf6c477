// SPDX-License-Identifier: MIT
#include "tests/support/fake_host.h"
#include "tests/support/text.h"

#include "tests/support/files.h"

#include <QTemporaryDir>

namespace halvern {

QByteArray ppdHeader()
{
    return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
           "*LanguageEncoding: ISOLatin1\n*PCFileName: \"TEST.PPD\"\n*Manufacturer: \"Halvern\"\n*Product: "
           "\"(Test)\"\n"
           "*ModelName: \"Halvern Test\"\n*ShortNickName: \"Halvern Test\"\n*NickName: \"Halvern Test\"\n"
           "*PSVersion: \"(3010.000) 0\"\n*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: "
           "RGB\n"
           "*FileSystem: False\n*Throughput: \"1\"\n*TTRasterizer: Type42\n"
           "*OpenUI *PageSize/Media Size: PickOne\n*OrderDependency: 10 AnySetup "
           "*PageSize\n*DefaultPageSize: A4\n"
           "*PageSize A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n*CloseUI: *PageSize\n"
           "*OpenUI *PageRegion/Media Size: PickOne\n*OrderDependency: 10 AnySetup *PageRegion\n"
           "*DefaultPageRegion: A4\n*PageRegion A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n*CloseUI: "
           "*PageRegion\n"
           "*DefaultImageableArea: A4\n*ImageableArea A4/A4: \"9 9 586 833\"\n"
           "*DefaultPaperDimension: A4\n*PaperDimension A4/A4: \"595 842\"\n";
}

QByteArray ppdOption(const QByteArray& keyword, const QList<QByteArray>& choices)
{
    QByteArray text = "*OpenUI *" + keyword + "/" + keyword +
                      " title: PickOne\n*OrderDependency: 20 AnySetup *" + keyword + "\n*Default" + keyword +
                      ": " + choices.first().split('/').first() + "\n";
    for (const QByteArray& choice : choices)
        text += "*" + keyword + " " + choice + ": \"\"\n";
    return text + "*CloseUI: *" + keyword + "\n";
}

ppd::File ppdOf(const QByteArray& text)
{
    const QTemporaryDir folder;
    QString why;
    ppd::File file = ppd::open(writeFile(folder.filePath(q("test.ppd")), text), &why);
    if (!file)
        qFatal("the test's PPD does not open: %s", qPrintable(why));
    return file;
}

FakeHost::FakeHost(const QByteArray& text)
{
    if (text.isEmpty())
        return;
    file_ = ppdOf(text);
    ppd::markDefaults(file_.get());
}

bool FakeHost::willChangePPDOptionKeyValue_ppdChoice(const QString& key, const QVariant& choice)
{
    asked.append({key, choice});
    if (refusedKeys.contains(key))
        return false;
    if (!file_ || !ppd::mark(file_.get(), key, choice.toString()))
        settings->setValue(key, choice, false);
    return true;
}

} // namespace halvern
