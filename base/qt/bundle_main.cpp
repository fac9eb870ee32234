#include <QCoreApplication>

#include "base/bundle.h"

namespace kalvo::base {

const Bundle& Bundle::main() {
    static const Bundle bundle = [] {
        const std::filesystem::path beside = QCoreApplication::applicationDirPath().toStdString();
        std::error_code ignored;
        if (const auto inBuildTree = beside / "resources";
            std::filesystem::is_directory(inBuildTree, ignored)) {
            return Bundle(inBuildTree);
        }
        return Bundle(beside.parent_path() / "share" / "kalvo-tresk");
    }();
    return bundle;
}

}  // namespace kalvo::base
