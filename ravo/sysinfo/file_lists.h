#pragma once

#include <array>
#include <string_view>

/// The files of the suite that the report looks for, in the order of the report.
///
/// Eleven names are defined by this library: the package of the report layer `RavoReportLowLevel.bpl` and the
/// ten `RavoPresentation*.bpl`, named after the modules whose presentation layer they are.
namespace ravo::sysinfo {

/// Run-time packages of the user-interface framework.
inline constexpr auto kVclFiles = std::to_array<std::u16string_view>({
    u"vcl70.bpl",
    u"vclado70.bpl",
    u"vcldb70.bpl",
    u"vclx70.bpl",
    u"vclie70.bpl",
    u"vcljpg70.bpl",
    u"tee70.bpl",
    u"teedb70.bpl",
    u"teeui70.bpl",
    u"indy70.bpl",
});

/// Files of a client.
inline constexpr auto kVisualFiles = std::to_array<std::u16string_view>({
    u"Ravo.exe",
    u"RavoInterface.bpl",
    u"RavoPresentationLowLevel.bpl",
    u"RavoPresentationProfile.bpl",
    u"RavoPresentationBase.bpl",
    u"RavoPresentationUcetnictvi.bpl",
    u"RavoPresentationKancelar.bpl",
    u"RavoPresentationSklad.bpl",
    u"RavoPresentationMajetek.bpl",
    u"RavoPresentationMzda.bpl",
    u"RavoPresentationDCF.bpl",
    u"RavoPresentationRSS.bpl",
    u"RavoExport.bpl",
    u"RavoExcel.bpl",
    u"RavoUpravy.bpl",
    u"RavoMazani.bpl",
    u"RavoKontrola.bpl",
    u"RavoKorespondence.bpl",
    // Kept: component files have names that end in .jpg. Test: InstalledFiles.ComponentFilesEndInJpg
    u"eqtld5.jpg",
    u"dxcomnd5.jpg",
    u"dxedtrd5.jpg",
    u"dxelibd5.jpg",
    u"dxinsd5.jpg",
});

/// Packages of the report engine.
inline constexpr auto kReportFiles = std::to_array<std::u16string_view>({
    u"RavoReportLowLevel.bpl",
    u"rbcide55.bpl",
    u"rbct55.bpl",
    u"rbdad55.bpl",
    u"rbide55.bpl",
    u"rbrap55.bpl",
    u"rbrcl55.bpl",
    u"rbride55.bpl",
    u"rbuser55.bpl",
    u"rbtc55.bpl",
    u"rbtdbc55.bpl",
});

/// Files of the application layer.
inline constexpr auto kBusinessFiles = std::to_array<std::u16string_view>({
    u"RavoProfileInfo.dll",
    u"RavoManager.dll",
    u"RavoInterface.bpl",
    u"RavoLowLevel.bpl",
    u"RavoEngine.bpl",
    u"RavoProfile.dll",
    u"RavoBase.dll",
    u"RavoUcetnictvi.dll",
    u"RavoKancelar.dll",
    u"RavoMajetek.dll",
    u"RavoSklad.dll",
    u"RavoMzda.dll",
    u"RavoDCF.dll",
    u"RavoRSS.dll",
});

}  // namespace ravo::sysinfo
