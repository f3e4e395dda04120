#include "cpu/plan_remarks.h"

namespace morvane {

namespace {

constexpr Remark kSimpleIsBest{"素直が一番。", "Simple is best."};
constexpr Remark kEasyForMe{"簡単、簡単♪", "Easy for me."};
constexpr Remark kCombinationShot{"コンビネーションショット！", "Combination Shot!"};
// In English zeph keeps quiet about an object-ball bank, whether the road to the image is free.
constexpr Remark kHopefulBank{"的球のバンクだとはいるかな？", "......."};
constexpr Remark kHopelessBank{"これは無理かな～", "......."};
constexpr Remark kBankShot{"バンクショット！", "Bank Shot."};
constexpr Remark kBankShotExclaimed{"バンクショット！", "Bank Shot!"};
constexpr Remark kBankAndCombination{"バンク＆コンビネーション！", "Bank & Conbination Shot!"};
constexpr Remark kDifficult{"当てるぐらいしかできませんね", "Difficalt !"};
constexpr Remark kCannotPot{"とりあえず当てていきましょうかね。", "I can't Poket."};
constexpr Remark kNothingToDo{"打つ手がないよ～", "I can do nothing!"};

} // namespace

Remark remarkOf(const ShotPlan& plan) {
    switch (plan.strategy) {
    case Strategy::Direct:
        return kSimpleIsBest;
    case Strategy::DirectCombination:
        return plan.roadHoldsBall ? kCombinationShot : kEasyForMe;
    case Strategy::ObjectBank:
        return plan.roadHoldsBall ? kHopelessBank : kHopefulBank;
    case Strategy::CueBank:
        return kBankShot;
    case Strategy::CueBankCombination:
        return plan.roadHoldsBall ? kBankAndCombination : kBankShotExclaimed;
    case Strategy::JustHit:
        return kDifficult;
    case Strategy::CushionHit:
        return kCannotPot;
    case Strategy::None:
        break;
    }
    return kNothingToDo;
}

} // namespace morvane
