// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmAbout.h"
#include "app/frmLogin.h"
#include "app/frmserver.h"
#include "directory/FrmParameter.h"
#include "listview/forms/row_dialog.h"
#include "listview/frmFind.h"
#include "listview/frmSetList.h"
#include "listview/frmSort.h"
#include "listview/frmconduser.h"
#include "listview/frmref.h"
#include "operators/frmRights.h"
#include "tests/screens/screen_fixture.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

/// No two captions may ask for the same Alt key.
template <class Item>
void check_keys(const QList<Item*>& items) {
    QSet<QKeySequence> keys;
    for (const QObject* item : items) {
        const auto key = QKeySequence::mnemonic(item->property("text").toString());
        QVERIFY2(!keys.contains(key), qPrintable(key.toString()));
        keys += key.isEmpty() ? QSet<QKeySequence>() : QSet{key};
    }
}

[[nodiscard]] bool has_light(const QPixmap& picture) {
    const QImage on_black = picture.toImage().convertToFormat(QImage::Format_RGB32);
    const QList<QRgb> all = on_black.convertToFormat(QImage::Format_Indexed8).colorTable();
    return std::any_of(all.begin(), all.end(),
                       [](QRgb colour) { return QColor(colour).lightness() > 150; });
}

/// Whoever cannot see a window or has no mouse needs names, a road as one reads, and buttons that
/// Enter presses.
void check_road(const QWidget& window, const QWidget& start) {
    QRect last;
    for (QWidget* box = start.nextInFocusChain(); box != &start; box = box->nextInFocusChain()) {
        if (window.isAncestorOf(box) && box->isVisible() && (box->focusPolicy() & Qt::TabFocus)) {
            const QRect place(box->mapTo(&window, QPoint()), box->size());
            QVERIFY2(window.rect().contains(place) && place.bottom() >= last.top() &&
                         (place.top() > last.bottom() || place.left() > last.right()) &&
                         (box->inherits("QAbstractButton") || !box->accessibleName().isEmpty()) &&
                         (!box->inherits("QPushButton") || box->property("autoDefault").toBool()),
                     qPrintable(window.windowTitle() + u' ' + box->objectName()));
            last = place;
        }
    }
    QVERIFY(last.isValid());
}

/// Every text has room and stands out.
void check_texts(const QWidget& window) {
    const QWidgetList widgets = window.findChildren<QWidget*>();
    check_keys(widgets);
    for (const QWidget* box : widgets) {
        const QString text = box->property("text").toString();
        const QSize needed = box->inherits("QLabel")
                                 ? box->minimumSizeHint()
                                 : box->fontMetrics().size(Qt::TextShowMnemonic, text);
        const int contrast = box->palette().color(box->foregroundRole()).lightness() -
                             box->palette().color(box->backgroundRole()).lightness();
        const bool fits = text.isEmpty() || needed.boundedTo(box->size()) == needed;
        QVERIFY2((fits && contrast > 150) || !box->isVisible() || !box->isEnabled(),
                 qPrintable(text));
    }
    for (const auto* grid : window.findChildren<data_grid*>()) {
        for (int i = 0; i < grid->model()->columnCount(); ++i) {
            const QString text = grid->model()->index(0, i).data().toString();
            const int needed = qMax(grid->fontMetrics().horizontalAdvance(text),
                                    grid->horizontalHeader()->sectionSizeHint(i));
            QVERIFY2(grid->isColumnHidden(i) || grid->columnWidth(i) > needed, qPrintable(text));
        }
    }
}

void check_shown(QWidget& dialog) {
    check_road(dialog, dialog);
    check_texts(dialog);
    auto buttons = dialog.findChildren<QPushButton*>(); // the rights editor has none
    QVERIFY(buttons.isEmpty() || buttons.removeIf([](auto* one) { return one->isDefault(); }) == 1);
    person::press_key(dialog, Qt::Key_Escape);
    QVERIFY2(!dialog.isVisible(), qPrintable(dialog.windowTitle()));
}

void check_dialog(QDialog&& dialog) {
    dialog.show();
    check_shown(dialog);
}

} // namespace

/// What every window and dialog owes whoever reads it, in the colours of a dark desktop.
class test_looks : public QObject {
    Q_OBJECT

private slots:
    void reads_well_data() {
        QTest::addColumn<int>("points");
        QTest::newRow("small text") << 9;
        QTest::newRow("large text") << 14;
    }

    void reads_well() {
        QFETCH(const int, points);
        QApplication::setFont(QFont(QApplication::font().family(), points));
        QPalette dark(QColor(0x31363b));
        dark.setColor(QPalette::PlaceholderText, Qt::black); // some desktops leave it so
        QApplication::setPalette(dark);

        screen_fixture program;
        test_database::execute(
            u"insert into sendsms values (1, '13912345678', '好', 0, 0, 0, 0, '2024/01/31 08:00:00', '2024/01/31 08:00:00')"_s);
        for (const QWidget* menu : program.window.findChildren<QWidget*>()) {
            check_keys(menu->actions());
        }
        QStringList items{u"mnuSysUSer"_s};
        for (const QAction* item : person::find<QMenu>(program.window, u"mnuIN"_s).actions()) {
            items += item->isEnabled() && !item->isSeparator() ? item->objectName() : QString();
        }
        items.removeAll(QString());
        for (const QString& item : items) {
            const frmdatagrid& list = program.list(item);
            QCoreApplication::processEvents(); // the tool bar puts its buttons in place
            check_road(list, grid_of(list));   // which has the focus
            check_texts(list);
            if (person::find<QAction>(list, u"Add"_s).isEnabled()) {
                person::expect_modal("edit_dialog", check_shown);
                person::click(list, u"Add"_s);
            }
        }
        QVERIFY(person::all_answered());

        const picker_column number{u"mid", u"编号", 900};
        spListHeaders columns = make_picker_columns(u"常用语"_s, {}, {&number, 1});
        Recordset rows;
        vc_in none;
        const auto check = [](auto&&... dialogs) { (check_dialog(std::move(dialogs)), ...); };
        check(FrmParameter(), frmLogin(), frmserver(), frmFind(columns), frmSort(columns),
              frmref(columns, rows), row_dialog(grid_of(program.list(u"mnusend"_s))),
              frmSetList(columns), frmconduser({}, none), frmRights(),
              frmAbout(*system_registry()));
    }

    void what_the_style_draws_turns_light_with_a_dark_desktop() {
        QApplication::setPalette(QPalette(Qt::lightGray));
        screen_fixture program;
        const frmdatagrid& behind = program.list(u"mnugroup"_s);
        const frmdatagrid& active = program.list(u"mnuCreTech"_s);
        person::choose(program.window, u"mnuWindowCascade"_s);
        const QIcon arrow =
            QApplication::style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
        QApplication::setPalette(QPalette(QColor(0x31363b)));
        QCoreApplication::processEvents(); // every window hears of it
        QVERIFY(has_light(arrow.pixmap(16)));
        QVERIFY(has_light(QCheckBox().grab()));
        QVERIFY(has_light(QRadioButton().grab()));
        for (QWidget* window : {behind.parentWidget(), active.parentWidget()}) {
            // the buttons at the end of the title bar
            QVERIFY(has_light(window->grab({{window->width() - 70, 4}, QSize(60, 20)})));
        }
        const QImage grid = grid_of(active).grab().toImage(); // has the focus
        QCOMPARE(grid.pixelColor(0, 0), QApplication::palette().highlight().color());
    }
};

QTEST_MAIN(test_looks)
#include "test_looks.moc"
