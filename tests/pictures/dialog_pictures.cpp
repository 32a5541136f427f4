// Draws every dialog into a folder, in each language, light and dark, for those who want to see
// them: "dialog-pictures FOLDER". QT_SCALE_FACTOR=2 makes them large.
#include "support/dialog_showcase.h"
#include "widgets/appearance.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>

namespace quendra::test {
namespace {

struct Appearances {
    const char* name;
    Appearance appearance;
};
constexpr Appearances appearances[] = {{"light", Appearance::Light}, {"dark", Appearance::Dark}};

class Drawing : public DialogShowcase {
  public:
    explicit Drawing(const std::string& language) : DialogShowcase(language) {}

    /// True when the picture was written.
    [[nodiscard]] bool draw(const ShownDialog& row, const QString& file) {
        bool written = false;
        show(row, [&](QDialog& dialog) { written = dialog.grab().save(file); });
        return written;
    }

  private:
    void TestBody() override {}
};

int run(const QStringList& arguments) {
    if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
        std::fputs("usage: dialog-pictures FOLDER\n", stderr);
        return 2;
    }
    int missing = 0;
    for (const auto& [name, appearance] : appearances) {
        QApplication::setPalette(appearancePalette(appearance));
        for (const char* language : {"qdstring", "qdstring_de"}) {
            for (const ShownDialog& row : shownDialogs()) {
                const QString file = QStringLiteral("%1/%2-%3-%4.png")
                                         .arg(arguments[1], QLatin1String(row.name),
                                              QLatin1String(language), QLatin1String(name));
                if (!Drawing(language).draw(row, file)) {
                    std::fprintf(stderr, "dialog-pictures: not written: %s\n", qPrintable(file));
                    ++missing;
                }
            }
        }
    }
    return missing == 0 ? 0 : 1;
}

}  // namespace
}  // namespace quendra::test

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    QApplication application(argc, argv);
    quendra::applyAppearance(quendra::Appearance::Light);
    return quendra::test::run(QApplication::arguments());
}
