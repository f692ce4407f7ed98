#include "show/MusicOut.h"

#include "generate/PackageReader.h"
#include "show/ShowModel.h"

namespace zentor {

bool StartMusic(MusicOut& out, const PackageContents& package) {
    const show::MusicSettings music = show::MusicSettingsOf(package.Info);
    const QByteArray bytes = package.blob(Package::MusicEntry);
    if (!music.Present || bytes.isEmpty())
        return false;
    return out.play(bytes, music.Volume, music.Loop);
}

} // namespace zentor
