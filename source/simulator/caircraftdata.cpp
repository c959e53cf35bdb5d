#include "caircraftdata.h"

#include "cpodmgr.h"

namespace {

struct NumberTag
{
    const char* tag;
    int CAircraftData::*field;
};

const NumberTag numberTags[] = {
    {"<048a>", &CAircraftData::speedMax},  {"<043a>", &CAircraftData::speedCruise},
    {"<045a>", &CAircraftData::speedVert}, {"<044a>", &CAircraftData::speedApp},
    {"<CEIL>", &CAircraftData::ceiling},
};

} // namespace

void CAircraftData::readSvh(CPodMgr* pod)
{
    acid = pod->lineAfter(QStringLiteral("<acid>")).trimmed();
    for (const NumberTag& number : numberTags) {
        this->*number.field = pod->lineAfter(QLatin1String(number.tag)).trimmed().toInt();
    }
}
