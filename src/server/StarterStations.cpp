#include "server/Stations.h"

namespace sonavel {

const std::vector<PublicStation>& starterStations()
{
    static const std::vector<PublicStation> stations{
        {"BBC World Service", "http://stream.live.vc.bbcmedia.co.uk/bbc_world_service"},
        {"BR-Klassik", "https://dispatcher.rndfnk.com/br/brklassik/live/mp3/high"},
        {"Deutschlandfunk", "https://st01.sslstream.dlf.de/dlf/01/128/mp3/stream.mp3"},
        {"Deutschlandfunk Kultur", "https://st02.sslstream.dlf.de/dlf/02/128/mp3/stream.mp3"},
        {"Deutschlandfunk Nova", "https://st03.sslstream.dlf.de/dlf/03/128/mp3/stream.mp3"},
        {"FIP", "https://icecast.radiofrance.fr/fip-midfi.mp3"},
        {"FM4", "https://orf-live.ors-shoutcast.at/fm4-q2a"},
        {"France Culture", "https://icecast.radiofrance.fr/franceculture-midfi.mp3"},
        {"France Inter", "https://icecast.radiofrance.fr/franceinter-midfi.mp3"},
        {"France Musique", "https://icecast.radiofrance.fr/francemusique-midfi.mp3"},
        {"KCRW Los Angeles", "https://kcrw.streamguys1.com/kcrw_192k_mp3_on_air"},
        {"KEXP Seattle", "https://kexp-mp3-128.streamguys1.com/kexp128.mp3"},
        {"NPO Klassiek", "https://icecast.omroep.nl/radio4-bb-mp3"},
        {"NPO Radio 1", "https://icecast.omroep.nl/radio1-bb-mp3"},
        {"NPR News", "https://npr-ice.streamguys1.com/live.mp3"},
        {"NTS 1", "https://stream-relay-geo.ntslive.net/stream"},
        {"NTS 2", "https://stream-relay-geo.ntslive.net/stream2"},
        {"RAI Radio 1", "http://icestreaming.rai.it/1.mp3"},
        {"RAI Radio 3", "http://icestreaming.rai.it/3.mp3"},
        {"RNE Radio Clásica", "https://rtvelivestream.akamaized.net/rtvesec/rne/rne_r2_main.m3u8"},
        {"RNE Radio Nacional", "https://rtvelivestream.akamaized.net/rtvesec/rne/rne_r1_main.m3u8"},
        {"RNZ National", "https://stream-ice.radionz.co.nz/national_aac64"},
        {"RTS La Première", "https://stream.srg-ssr.ch/m/la-1ere/mp3_128"},
        {"Radio Paradise", "https://stream.radioparadise.com/mp3-192"},
        {"Radio Swiss Classic", "https://stream.srg-ssr.ch/m/rsc_de/mp3_128"},
        {"Radio Swiss Jazz", "https://stream.srg-ssr.ch/m/rsj/mp3_128"},
        {"Radio Swiss Pop", "https://stream.srg-ssr.ch/m/rsp/mp3_128"},
        {"SRF 1", "https://stream.srg-ssr.ch/m/drs1/mp3_128"},
        {"SWR3", "https://liveradio.swr.de/sw282p3/swr3/play.mp3"},
        {"SomaFM Drone Zone", "https://ice1.somafm.com/dronezone-128-mp3"},
        {"SomaFM Groove Salad", "https://ice1.somafm.com/groovesalad-128-mp3"},
        {"SomaFM Secret Agent", "https://ice1.somafm.com/secretagent-128-mp3"},
        {"Studio Brussel", "http://icecast.vrtcdn.be/stubru-high.mp3"},
        {"WBGO Newark", "https://wbgo.streamguys1.com/wbgo128"},
        {"WDR 3", "https://wdr-wdr3-live.icecastssl.wdr.de/wdr/wdr3/live/mp3/256/stream.mp3"},
        {"WFMU Jersey City", "http://stream0.wfmu.org/freeform-128k"},
        {"WQXR New York", "https://stream.wqxr.org/wqxr"},
        {"Ö1", "https://orf-live.ors-shoutcast.at/oe1-q2a"},
    };
    return stations;
}

} // namespace sonavel
