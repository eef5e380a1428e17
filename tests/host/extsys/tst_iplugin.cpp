// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include <ExtSys/iplugin.h>

#include <QTest>

namespace {

class Plugin : public ExtSys::IPlugin
{
public:
    bool initialize() override { return true; }
    void allPluginsReady() override {}
    void shutdown() override {}
};

} // namespace

class TestIPlugin : public QObject
{
    Q_OBJECT

private slots:
    void interfaceIdIsTheHosts()
    {
        const QByteArray id = qobject_interface_iid<ExtSys::IPlugin *>();
        QCOMPARE(id, QByteArray("org.fpgaworkbench.plugins.IPlugin/1.0"));
    }

    void pluginIsAnObject()
    {
        QObject parent;
        auto *plugin = new Plugin;
        plugin->setParent(&parent);
        QVERIFY(plugin->inherits("ExtSys::IPlugin"));
    }
};

QTEST_APPLESS_MAIN(TestIPlugin)
#include "tst_iplugin.moc"
