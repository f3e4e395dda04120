#include "startup/menu_captions.h"

namespace morvane {

namespace {

const MenuCaptions kJapanese{"ゲーム(&G)",        "スタート(&S)",
                             "一手戻し",          "独り撞き成績",
                             "対戦成績",          "終了(&X)",
                             "独り撞き→対戦(&M)", "実況(&C)",
                             "ｵﾌﾟｼｮﾝ(&)",         "効果音",
                             "ヘルプ(&H)",        "目次",
                             "キーワードで検索",  "バージョン情報...(&V)"};

const MenuCaptions kEnglish{"&Game",
                            "&Start",
                            "Back",
                            "Record",
                            "VS Record",
                            "E&xit",
                            "Solo->VS",
                            "実況(&C)",
                            "&Option",
                            "&Sound",
                            "&Help",
                            "Contents",
                            "キーワードで検索",
                            "&Version..."};

} // namespace

MenuCaptions menuCaptions(bool japanese) {
    return japanese ? kJapanese : kEnglish;
}

} // namespace morvane
