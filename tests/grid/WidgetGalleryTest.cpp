#include "fakes/Scene.h"
#include "widgets/WidgetFixture.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickView>
#include <QSignalSpy>

namespace brimlight::test {
namespace {

WidgetDefinition kind(const QString &name, WidgetSize size)
{
    return {.metadata = {.kind = name,
                         .displayName = name,
                         .symbol = QStringLiteral("timer"),
                         .allowedSizes = {size},
                         .defaultSize = size}};
}

/// The sheet with one kind of each extreme, all of one symbol.
class WidgetGallery : public WidgetTest
{
protected:
    WidgetGallery()
        : WidgetTest({kind(QStringLiteral("little"), WidgetSize::small),
                      kind(QStringLiteral("broad"), WidgetSize::wide),
                      kind(QStringLiteral("giant"), WidgetSize::huge)})
    {
        motion.installOn(*view.engine());
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        view.setInitialProperties({{QStringLiteral("catalog"), QVariant::fromValue(&catalog)},
                                   {QStringLiteral("theme"), QVariant::fromValue(&theme)},
                                   {QStringLiteral("open"), true}});
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.resize(380, 460);
        view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Grid/WidgetGallery.qml")));
        view.show();
        // The cards are made when the sheet is laid out.
        QCoreApplication::processEvents();
    }
    QQuickItem *card(const QString &name) const { return scene.button(name); }
    /// What holds the live preview of a card.
    QQuickItem *preview(const QString &name) const
    {
        for (QQuickItem *item : scene.items()) {
            if (item->inherits("brimlight::WidgetHost") && item->property("kind") == name)
                return item->parentItem();
        }
        return nullptr;
    }

    FakeAppearance appearance;
    Motion motion{&appearance};
    WidgetCatalog catalog{environment};
    QQuickView view;
    Scene scene{view};
};

} // namespace

TEST_F(WidgetGallery, AHugePreviewIsScaledDownAndASmallOneKeepsItsSize)
{
    QQuickItem *small = preview(QStringLiteral("little"));
    QQuickItem *wide = preview(QStringLiteral("broad"));
    QQuickItem *huge = preview(QStringLiteral("giant"));
    ASSERT_TRUE(small && wide && huge);
    EXPECT_EQ(small->size(), QSizeF(74, 74));
    EXPECT_EQ(small->scale(), 1);
    EXPECT_EQ(huge->size(), QSizeF(246, 246));
    EXPECT_DOUBLE_EQ(huge->scale(), 84.0 / 246) << "as high as its area";
    EXPECT_DOUBLE_EQ(wide->scale(), wide->parentItem()->width() / 160) << "as wide as its area";
    for (const QQuickItem *item : {small, wide, huge}) {
        EXPECT_EQ(item->parentItem()->height(), 84);
        EXPECT_EQ(Scene::middle(*item), Scene::middle(*item->parentItem()));
    }
}

TEST_F(WidgetGallery, ACardShowsItsDefaultSizeAndNoOtherAsAChip)
{
    for (const auto &[name, chip] :
         {std::pair("little", "1×1"), std::pair("broad", "2×1"), std::pair("giant", "3×3")}) {
        QStringList chips;
        for (const QQuickItem *item :
             preview(QLatin1String(name))->parentItem()->findChildren<QQuickItem *>()) {
            if (const QString text = item->property("text").toString(); text.contains(u'×'))
                chips.append(text);
        }
        EXPECT_EQ(chips, QStringList{QString::fromUtf8(chip)}) << name;
    }
}

TEST_F(WidgetGallery, CardsStandApartAndHoldTheirTexts)
{
    const QQuickItem *left = card(QStringLiteral("little"));
    const QQuickItem *right = card(QStringLiteral("broad"));
    const QQuickItem *below = card(QStringLiteral("giant"));
    EXPECT_EQ(left->mapToScene({}).x(), 32);
    EXPECT_EQ(left->width(), 152);
    EXPECT_EQ(right->mapToScene({}).x(), left->mapToScene({}).x() + left->width() + 12);
    EXPECT_EQ(below->mapToScene({}).y(), left->mapToScene({}).y() + left->height() + 12);
    EXPECT_EQ(left->height(), left->implicitHeight());
}

TEST_F(WidgetGallery, CardsOfOneSymbolAreToldApartByTheirKind)
{
    QSignalSpy added(view.rootObject(), SIGNAL(added(QString)));
    for (const QString &name : {QStringLiteral("giant"), QStringLiteral("little")}) {
        ASSERT_TRUE(card(name)) << qPrintable(name);
        scene.click(*card(name));
        ASSERT_EQ(added.size(), 1);
        EXPECT_EQ(added.takeFirst(), QVariantList{name});
    }
}

} // namespace brimlight::test
