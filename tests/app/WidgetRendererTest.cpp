#include "app/WidgetRenderer.h"

#include "widgets/WidgetFixture.h"

namespace brimlight::test {
namespace {

const QString plain = QStringLiteral("plain");
const QString broken = QStringLiteral("broken");

WidgetDefinition kind(const QString &name, const QUrl &view)
{
    return {.metadata = {.kind = name,
                         .displayName = name,
                         .symbol = QStringLiteral("timer"),
                         .allowedSizes = {WidgetSize::wide},
                         .defaultSize = WidgetSize::wide},
            .view = view};
}

class WidgetRendererTest : public WidgetTest
{
protected:
    WidgetRendererTest()
        : WidgetTest({kind(plain, {}), kind(broken, QUrl(QStringLiteral("qrc:/nowhere.qml")))})
    {
    }

    WidgetCatalog catalog{environment};
    WidgetRenderer renderer{catalog, theme};
};

} // namespace

TEST_F(WidgetRendererTest, DrawsTheTileAndNothingBeside)
{
    const QImage image = renderer.render(plain, WidgetSize::wide);
    EXPECT_EQ(image.size(), QSize(320, 148));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_GT(image.pixelColor(image.rect().center()).alpha(), 0);
}

TEST_F(WidgetRendererTest, AViewThatCannotBeMadeIsNoPicture)
{
    // The warning about it is wanted here.
    const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QImage image = renderer.render(broken, WidgetSize::wide);
    qInstallMessageHandler(before);
    EXPECT_TRUE(image.isNull());
}

} // namespace brimlight::test
