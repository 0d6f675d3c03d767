"""What makes a browser start without questions, ask nobody for anything, draw by itself and save
without a question: switches of Chromium with its preferences, and preferences of Firefox."""
import os

CHROMIUM_SWITCHES = [
    "--kiosk", "--test-type", "--disable-gpu", "--force-color-profile=srgb", "--lang=en-US",
    # Nothing at the start, nothing after a crash.
    "--no-first-run", "--no-default-browser-check", "--disable-default-apps",
    "--disable-search-engine-choice-screen", "--disable-session-crashed-bubble",
    "--hide-crash-restore-bubble", "--noerrdialogs", "--disable-infobars", "--password-store=basic",
    "--disable-breakpad", "--disable-crash-reporter", "--disable-extensions",
    # Nobody is asked. A name is not even looked up; numbers and this machine stay reachable.
    "--disable-background-networking", "--disable-component-update", "--disable-sync",
    "--disable-domain-reliability", "--disable-client-side-phishing-detection", "--no-pings",
    "--metrics-recording-only",
    "--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE localhost, EXCLUDE 127.0.0.1",
    "--disable-features=Translate,MediaRouter,DialMediaRouteProvider,OptimizationHints,"
    "AutofillServerCommunication,CertificateTransparencyComponentUpdater,InterestFeedContentSuggestions,"
    "OptimizationGuideModelDownloading,NetworkTimeServiceQuerying,LocalNetworkAccessChecks",
]


def chromium_switches(profile, pixel_ratio):
    root = ["--no-sandbox"] if os.geteuid() == 0 else []  # who cannot have one
    return CHROMIUM_SWITCHES + root + [f"--user-data-dir={profile}", "--remote-debugging-port=0",
                                       f"--force-device-scale-factor={pixel_ratio:g}"]


def chromium_preferences(downloads):
    return {
        "download": {"default_directory": downloads, "prompt_for_download": False,
                     "directory_upgrade": True},
        "download_bubble": {"partial_view_enabled": False},
        "profile": {"default_content_setting_values": {"automatic_downloads": 1}},
        "safebrowsing": {"enabled": False, "enhanced": False},
        "search": {"suggest_enabled": False},
        "signin": {"allowed": False},
        "credentials_enable_service": False,
        "alternate_error_pages": {"enabled": False},
        "net": {"network_prediction_options": 2},
        "translate": {"enabled": False},
        "bookmark_bar": {"show_on_all_tabs": False},
    }


def firefox_preferences(downloads, pixel_ratio):
    return {
        "layout.css.devPixelsPerPx": f"{pixel_ratio:g}",  # a text to Firefox
        "gfx.webrender.software": True,
        "gfx.color_management.mode": 0,
        "intl.locale.requested": "en-US",
        # A page may ask whoever leaves it, as it may for a user.
        "dom.disable_beforeunload": False,
        # Ports that are no web servers' are asked like any other.
        "network.security.ports.banned.override": "1-65535",
        # Nothing at the start, nothing after a crash, no tips.
        "browser.aboutwelcome.enabled": False,
        "browser.aboutConfig.showWarning": False,
        "browser.startup.page": 0,
        "browser.startup.homepage_override.mstone": "ignore",
        "browser.shell.checkDefaultBrowser": False,
        "browser.sessionstore.resume_from_crash": False,
        "browser.preonboarding.enabled": False,
        "termsofuse.bypassNotification": True,
        "trailhead.firstrun.didSeeAboutWelcome": True,
        "toolkit.startup.max_resumed_crashes": -1,
        "browser.translations.enable": False,
        "browser.messaging-system.whatsNewPanel.enabled": False,
        "browser.newtabpage.enabled": False,
        "browser.newtab.preload": False,
        "browser.uitour.enabled": False,
        "full-screen-api.warning.timeout": 0,
        "signon.rememberSignons": False,
        # Nobody is asked. A name is not even looked up; numbers stay reachable.
        "network.dns.disabled": True,
        "app.update.auto": False,
        "app.update.background.enabled": False,
        "app.update.disabledForTesting": True,
        "app.update.enabled": False,
        "app.normandy.enabled": False,
        "app.normandy.api_url": "",
        "app.shield.optoutstudies.enabled": False,
        "messaging-system.rsexperimentloader.enabled": False,
        "nimbus.rollouts.enabled": False,
        "datareporting.policy.dataSubmissionEnabled": False,
        "datareporting.healthreport.uploadEnabled": False,
        "datareporting.usage.uploadEnabled": False,
        "toolkit.telemetry.enabled": False,
        "toolkit.telemetry.unified": False,
        "toolkit.telemetry.server": "",
        "toolkit.telemetry.reportingpolicy.firstRun": False,
        "telemetry.fog.test.localhost_port": -1,
        "browser.ping-centre.telemetry": False,
        "browser.safebrowsing.malware.enabled": False,
        "browser.safebrowsing.phishing.enabled": False,
        "browser.safebrowsing.blockedURIs.enabled": False,
        "browser.safebrowsing.downloads.enabled": False,
        "browser.safebrowsing.update.enabled": False,
        "browser.safebrowsing.provider.google.updateURL": "",
        "browser.safebrowsing.provider.google4.updateURL": "",
        "browser.safebrowsing.provider.google5.updateURL": "",
        "browser.safebrowsing.provider.mozilla.updateURL": "",
        "network.captive-portal-service.enabled": False,
        "network.connectivity-service.enabled": False,
        "network.prefetch-next": False,
        "network.dns.disablePrefetch": True,
        "network.http.speculative-parallel-limit": 0,
        "network.predictor.enabled": False,
        "network.trr.mode": 5,
        "browser.search.suggest.enabled": False,
        "browser.search.update": False,
        "browser.search.serpEventTelemetryCategorization.enabled": False,
        "browser.urlbar.quicksuggest.enabled": False,
        "browser.urlbar.suggest.searches": False,
        "browser.region.network.url": "",
        "browser.region.update.enabled": False,
        "browser.discovery.enabled": False,
        "browser.contentblocking.report.monitor.enabled": False,
        "browser.topsites.contile.enabled": False,
        "browser.newtabpage.activity-stream.feeds.system.topstories": False,
        "browser.newtabpage.activity-stream.feeds.section.topstories": False,
        "browser.newtabpage.activity-stream.showSponsoredTopSites": False,
        "browser.pagethumbnails.capturing_disabled": True,
        "dom.push.connection.enabled": False,
        "dom.push.serverURL": "",
        "extensions.getAddons.cache.enabled": False,
        "extensions.blocklist.enabled": False,
        "extensions.systemAddon.update.enabled": False,
        "extensions.update.enabled": False,
        "extensions.update.autoUpdateDefault": False,
        "lightweightThemes.update.enabled": False,
        "media.gmp-manager.updateEnabled": False,
        "media.gmp-manager.url": "",
        "media.gmp-provider.enabled": False,
        "privacy.trackingprotection.enabled": False,
        "services.settings.server": "data:,",
        "security.remote_settings.crlite_filters.enabled": False,
        "security.remote_settings.intermediates.enabled": False,
        "security.OCSP.enabled": 0,
        "geo.provider.network.url": "",
        "identity.fxaccounts.enabled": False,
        # What a page gives is saved where it is told, with nothing shown over the page.
        "browser.download.folderList": 2,
        "browser.download.dir": downloads,
        "browser.download.useDownloadDir": True,
        "browser.download.alwaysOpenPanel": False,
        "browser.download.always_ask_before_handling_new_types": False,
        "browser.download.open_pdf_attachments_inline": False,
        "browser.download.enable_spam_prevention": False,
        "browser.helperApps.neverAsk.saveToDisk":
            "application/octet-stream,image/bmp,image/png,text/plain,application/zip",
    }
