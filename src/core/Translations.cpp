#include "core/Translations.h"

#include "core/EnumTexts.h"

#include <QHash>
#include <QStringList>

namespace brimlight {
namespace {

constexpr EnumTexts<AppLanguage, 5> languageTexts{{{{AppLanguage::english, u"en"},
                                                    {AppLanguage::german, u"de"},
                                                    {AppLanguage::french, u"fr"},
                                                    {AppLanguage::spanish, u"es"},
                                                    {AppLanguage::italian, u"it"}}}};
static_assert(languageTexts.covers(allLanguages));

constexpr EnumTexts<AppLanguage, 5> languageLabels{{{{AppLanguage::english, u"English"},
                                                     {AppLanguage::german, u"Deutsch"},
                                                     {AppLanguage::french, u"Français"},
                                                     {AppLanguage::spanish, u"Español"},
                                                     {AppLanguage::italian, u"Italiano"}}}};
static_assert(languageLabels.covers(allLanguages));

struct Row
{
    /// In the order of AppLanguage; the first, English, is the key.
    std::array<const char16_t *, allLanguages.size()> texts;
};

// clang-format off
constexpr Row rows[] = {
    {{u"Hover Delay", u"Hover-Verzögerung", u"Délai de survol", u"Retraso de desplazamiento", u"Ritardo passante"}},
    {{u"Notch Trigger", u"Notch-Auslöser", u"Déclencheur de l'encoche", u"Disparador de muesca", u"Attivatore notch"}},
    {{u"Immediate (0s)", u"Sofort (0s)", u"Immédiat (0s)", u"Inmediato (0s)", u"Immediato (0s)"}},
    {{u"Requires hovering the mouse over the notch for the selected duration before expanding. Prevents accidental triggers.",
      u"Der Mauszeiger muss für die gewählte Dauer auf der Notch ruhen, bevor sie sich öffnet. Verhindert versehentliches Öffnen.",
      u"La souris doit rester sur l'encoche pendant la durée choisie avant l'ouverture. Évite les déclenchements accidentels.",
      u"El ratón debe permanecer sobre la muesca durante el tiempo elegido antes de que se abra. Evita aperturas accidentales.",
      u"Il mouse deve restare sul notch per la durata scelta prima che si apra. Evita aperture accidentali."}},
    {{u"Startup", u"Systemstart", u"Démarrage", u"Inicio", u"Avvio"}},
    {{u"Launch Brimlight at login", u"Brimlight beim Login starten", u"Lancer Brimlight au démarrage", u"Iniciar Brimlight al iniciar sesión", u"Avvia Brimlight al login"}},
    {{u"Clock & Units", u"Uhr & Einheiten", u"Horloge et unités", u"Reloj y unidades", u"Orologio e unità"}},
    {{u"Use 24-hour clock format", u"24-Stunden-Format verwenden", u"Utiliser le format 24 heures", u"Usar formato de 24 horas", u"Usa il formato 24 ore"}},
    {{u"Show seconds in clock", u"Sekunden in der Uhr anzeigen", u"Afficher les secondes", u"Mostrar los segundos", u"Mostra i secondi nell'orologio"}},
    {{u"Use Celsius (°C) for temperature", u"Temperatur in Celsius (°C) anzeigen", u"Afficher la température en Celsius (°C)", u"Mostrar la temperatura en Celsius (°C)", u"Mostra la temperatura in Celsius (°C)"}},
    {{u"Performance", u"Leistung", u"Performances", u"Rendimiento", u"Prestazioni"}},
    {{u"Refresh Interval", u"Aktualisierungsintervall", u"Intervalle d'actualisation", u"Intervalo de actualización", u"Intervallo di aggiornamento"}},
    {{u"Controls update speed of active widgets in the expanded notch. Slower updates conserve your computer's battery.",
      u"Bestimmt, wie oft sich die aktiven Widgets in der geöffneten Notch aktualisieren. Langsamere Aktualisierung schont den Akku deines Computers.",
      u"Définit la vitesse de mise à jour des widgets actifs dans l'encoche ouverte. Des mises à jour plus lentes économisent la batterie de votre ordinateur.",
      u"Controla la velocidad de actualización de los widgets activos en la muesca abierta. Una actualización más lenta ahorra batería en tu ordenador.",
      u"Regola la velocità di aggiornamento dei widget attivi nel notch aperto. Aggiornamenti più lenti risparmiano la batteria del tuo computer."}},
    {{u"Software Update", u"Softwareupdate", u"Mise à jour logicielle", u"Actualización de software", u"Aggiornamento software"}},
    {{u"Current Version: ", u"Aktuelle Version: ", u"Version actuelle: ", u"Versión actual: ", u"Versione corrente: "}},
    {{u"Last checked: ", u"Zuletzt geprüft: ", u"Dernière vérification: ", u"Última comprobación: ", u"Ultimo controllo: "}},
    {{u"Check Now", u"Jetzt suchen", u"Vérifier", u"Comprobar ahora", u"Controlla ora"}},
    {{u"Automatically check for updates", u"Automatisch nach Updates suchen", u"Rechercher automatiquement les mises à jour", u"Buscar actualizaciones automáticamente", u"Verifica aggiornamenti automaticamente"}},
    {{u"Checking for updates...", u"Suche nach Updates...", u"Recherche de mises à jour...", u"Buscando actualizaciones...", u"Ricerca di aggiornamenti..."}},
    {{u"Brimlight is up to date.", u"Brimlight ist auf dem neuesten Stand.", u"Brimlight est à jour.", u"Brimlight está actualizado.", u"Brimlight è aggiornato."}},
    {{u"Download & Install", u"Laden & installieren", u"Télécharger et installer", u"Descargar e instalar", u"Scarica e installa"}},
    {{u"Downloading update...", u"Update wird geladen...", u"Téléchargement en cours...", u"Descargando actualización...", u"Download dell'aggiornamento..."}},
    {{u"Cancel", u"Abbrechen", u"Annuler", u"Cancelar", u"Annulla"}},
    {{u"Installing update. The app will restart shortly...", u"Update wird installiert. Die App startet gleich neu...",
      u"Installation de la mise à jour. L'application va bientôt redémarrer...",
      u"Instalando la actualización. La aplicación se reiniciará en breve...",
      u"Installazione dell'aggiornamento. L'app si riavvierà a breve..."}},
    {{u"Update Error", u"Update-Fehler", u"Erreur de mise à jour", u"Error de actualización", u"Errore di aggiornamento"}},
    {{u"Theme Presets", u"Farbschemata", u"Thèmes prédéfinis", u"Temas predefinidos", u"Temi predefiniti"}},
    {{u"Reset to Default Preset", u"Zurücksetzen", u"Réinitialiser", u"Restablecer", u"Ripristina"}},
    {{u"Custom Colors", u"Eigene Farben", u"Couleurs personnalisées", u"Colores personalizados", u"Colori personalizzati"}},
    {{u"Accent Highlight", u"Akzentfarbe", u"Couleur d'accent", u"Color de acento", u"Colore d'accento"}},
    {{u"Notch Surface", u"Notch-Oberfläche", u"Surface de l'encoche", u"Superficie de la muesca", u"Superficie del notch"}},
    {{u"Widget Tiles Background", u"Hintergrund der Kacheln", u"Fond des widgets", u"Fondo de los widgets", u"Sfondo dei widget"}},
    {{u"Primary Text", u"Haupttext", u"Texte principal", u"Texto principal", u"Testo principale"}},
    {{u"Secondary Text", u"Nebentext", u"Texte secondaire", u"Texto secundario", u"Testo secondario"}},
    {{u"Separators & Rims", u"Trennlinien & Ränder", u"Séparateurs et bords", u"Separadores y bordes", u"Separatori e bordi"}},
    {{u"Liquid Glass", u"Flüssiges Glas", u"Verre liquide", u"Cristal líquido", u"Vetro liquido"}},
    {{u"Transparency & Tint", u"Transparenz & Tönung", u"Transparence et teinte", u"Transparencia y tinte", u"Trasparenza e tinta"}},
    {{u"Settings", u"Einstellungen", u"Réglages", u"Ajustes", u"Impostazioni"}},
    {{u"Widgets", u"Widgets", u"Widgets", u"Widgets", u"Widget"}},
    {{u"Add widget", u"Widget hinzufügen", u"Ajouter un widget", u"Añadir widget", u"Aggiungi widget"}},
    {{u"Close", u"Schließen", u"Fermer", u"Cerrar", u"Chiudi"}},
    {{u"Keep open", u"Angeheftet lassen", u"Garder ouvert", u"Mantener abierto", u"Mantieni aperto"}},
    {{u"Language", u"Sprache", u"Langue", u"Idioma", u"Lingua"}},
    {{u"General", u"Allgemein", u"Général", u"General", u"Generali"}},
    {{u"Appearance", u"Darstellung", u"Apparence", u"Apariencia", u"Aspetto"}},
    {{u"Back", u"Zurück", u"Retour", u"Atrás", u"Indietro"}},
    {{u"Skip", u"Überspringen", u"Passer", u"Omitir", u"Salta"}},
    {{u"Next", u"Weiter", u"Suivant", u"Siguiente", u"Avanti"}},
    {{u"Get Started", u"Loslegen", u"Démarrer", u"Empezar", u"Inizia"}},
    {{u"Welcome to Brimlight!", u"Willkommen bei Brimlight!", u"Bienvenue sur Brimlight!", u"¡Bienvenido a Brimlight!", u"Benvenuto su Brimlight!"}},
    {{u"Your camera notch is now a powerful, liquid-glass workspace. Hover to peek, tap to pin, and access tools instantly.",
      u"Deine Kamera-Notch ist jetzt ein starker Arbeitsplatz aus flüssigem Glas. Zeig darauf für einen Blick, tippe zum Anheften und erreiche alle Werkzeuge sofort.",
      u"L'encoche de votre caméra est désormais un puissant espace de travail en verre liquide. Survolez pour jeter un œil, touchez pour épingler et accédez aussitôt à vos outils.",
      u"La muesca de tu cámara es ahora un potente espacio de trabajo de cristal líquido. Pasa el puntero para echar un vistazo, toca para fijar y accede a tus herramientas al instante.",
      u"Il notch della fotocamera è ora un potente spazio di lavoro in vetro liquido. Passa il puntatore per sbirciare, tocca per fissare e accedi subito agli strumenti."}},
    {{u"Customize Your Grid", u"Gestalte dein Raster", u"Personnalisez votre grille", u"Personaliza tu cuadrícula", u"Personalizza la griglia"}},
    {{u"Tap the '+' icon to browse the gallery. Drag widgets to snap them, and right-click to resize or remove.",
      u"Tippe auf „+“, um die Galerie zu öffnen. Ziehe Widgets an ihren Platz und ändere oder entferne sie per Rechtsklick.",
      u"Touchez « + » pour parcourir la galerie. Faites glisser les widgets pour les placer et utilisez le clic droit pour les redimensionner ou les retirer.",
      u"Toca «+» para ver la galería. Arrastra los widgets para colocarlos y usa el clic derecho para cambiar su tamaño o quitarlos.",
      u"Tocca «+» per sfogliare la galleria. Trascina i widget per agganciarli e usa il clic destro per ridimensionarli o rimuoverli."}},
    {{u"Pages & Navigation", u"Seiten & Navigation", u"Pages et navigation", u"Páginas y navegación", u"Pagine e navigazione"}},
    {{u"Pagination controls sit right next to the title. Switch pages or add new ones to organize your tasks.",
      u"Die Seitensteuerung steht direkt neben dem Titel. Wechsle die Seite oder füge neue hinzu, um deine Aufgaben zu ordnen.",
      u"Les commandes de page se trouvent juste à côté du titre. Changez de page ou ajoutez-en pour organiser vos tâches.",
      u"Los controles de página están junto al título. Cambia de página o añade otras nuevas para organizar tus tareas.",
      u"I controlli delle pagine sono accanto al titolo. Cambia pagina o aggiungine di nuove per organizzare le tue attività."}},
    {{u"Settings & Custom Themes", u"Einstellungen & eigene Themes", u"Réglages et thèmes personnalisés", u"Ajustes y temas personalizados", u"Impostazioni e temi personalizzati"}},
    {{u"Customize presets, colors, and update settings inline. Everything adjusts to fit your personal workflow.",
      u"Passe Vorlagen, Farben und Update-Einstellungen direkt hier an. Alles richtet sich nach deiner Arbeitsweise.",
      u"Personnalisez thèmes, couleurs et mises à jour sur place. Tout s'adapte à votre façon de travailler.",
      u"Personaliza temas, colores y actualizaciones aquí mismo. Todo se adapta a tu forma de trabajar.",
      u"Personalizza temi, colori e aggiornamenti direttamente qui. Tutto si adatta al tuo modo di lavorare."}},
};

// What the panel says beyond the table.
constexpr Row panelRows[] = {
    {{u"Undo", u"Widerrufen", u"Annuler", u"Deshacer", u"Annulla"}},
    {{u"Cut", u"Ausschneiden", u"Couper", u"Cortar", u"Taglia"}},
    {{u"Copy", u"Kopieren", u"Copier", u"Copiar", u"Copia"}},
    {{u"Paste", u"Einsetzen", u"Coller", u"Pegar", u"Incolla"}},
    {{u"Select All", u"Alles auswählen", u"Tout sélectionner", u"Seleccionar todo", u"Seleziona tutto"}},
    {{u"Date", u"Datum", u"Date", u"Fecha", u"Data"}},
    {{u"Previous month", u"Voriger Monat", u"Mois précédent", u"Mes anterior", u"Mese precedente"}},
    {{u"Next month", u"Nächster Monat", u"Mois suivant", u"Mes siguiente", u"Mese successivo"}},
    {{u"Hour", u"Stunde", u"Heure", u"Hora", u"Ora"}},
    {{u"Minute", u"Minute", u"Minute", u"Minuto", u"Minuto"}},
    {{u"Live · 0.5 s", u"Live · 0,5 s", u"En direct · 0,5 s", u"En vivo · 0,5 s", u"Dal vivo · 0,5 s"}},
    {{u"Balanced · 1 s", u"Ausgewogen · 1 s", u"Équilibré · 1 s", u"Equilibrado · 1 s", u"Bilanciato · 1 s"}},
    {{u"Efficient · 2 s", u"Effizient · 2 s", u"Efficace · 2 s", u"Eficiente · 2 s", u"Efficiente · 2 s"}},
    {{u"Power Saver · 5 s", u"Energiesparend · 5 s", u"Économie d'énergie · 5 s", u"Ahorro de energía · 5 s", u"Risparmio energetico · 5 s"}},
    {{u"Live theme preview", u"Live-Vorschau des Farbschemas", u"Aperçu du thème en direct", u"Vista previa del tema", u"Anteprima del tema dal vivo"}},
    {{u"Hue", u"Farbton", u"Teinte", u"Tono", u"Tonalità"}},
    {{u"Saturation", u"Sättigung", u"Saturation", u"Saturación", u"Saturazione"}},
    {{u"Brightness", u"Helligkeit", u"Luminosité", u"Brillo", u"Luminosità"}},
    {{u"Opacity", u"Deckkraft", u"Opacité", u"Opacidad", u"Opacità"}},
    {{u"Hex value", u"Hexwert", u"Valeur hexadécimale", u"Valor hexadecimal", u"Valore esadecimale"}},
    {{u"New version %@ is available!", u"Version %@ ist verfügbar!", u"La version %@ est disponible !", u"¡La versión %@ está disponible!", u"È disponibile la versione %@!"}},
    {{u"Page", u"Seite", u"Page", u"Página", u"Pagina"}},
    {{u"Add page", u"Seite hinzufügen", u"Ajouter une page", u"Añadir página", u"Aggiungi pagina"}},
    {{u"Do Not Disturb", u"Nicht stören", u"Ne pas déranger", u"No molestar", u"Non disturbare"}},
    {{u"Microphone muted", u"Mikrofon stummgeschaltet", u"Micro coupé", u"Micrófono silenciado", u"Microfono disattivato"}},
};

struct EdgeRow
{
    /// The text that this one stands for.
    const char16_t *key;
    Row row;
};

// Where the screen has no camera housing, nothing speaks of one.
constexpr EdgeRow edgeRows[] = {
    {u"Notch Trigger", {{u"Panel Trigger", u"Panel-Auslöser", u"Déclencheur du panneau", u"Disparador del panel", u"Attivatore del pannello"}}},
    {u"Requires hovering the mouse over the notch for the selected duration before expanding. Prevents accidental triggers.",
     {{u"Requires resting the mouse in the middle of the screen's top edge for the selected duration before expanding. Prevents accidental triggers.",
       u"Der Mauszeiger muss für die gewählte Dauer in der Mitte des oberen Bildschirmrands ruhen, bevor sich das Panel öffnet. Verhindert versehentliches Öffnen.",
       u"La souris doit rester au milieu du bord supérieur de l'écran pendant la durée choisie avant l'ouverture. Évite les déclenchements accidentels.",
       u"El ratón debe permanecer en el centro del borde superior de la pantalla durante el tiempo elegido antes de que se abra el panel. Evita aperturas accidentales.",
       u"Il mouse deve restare al centro del bordo superiore dello schermo per la durata scelta prima che il pannello si apra. Evita aperture accidentali."}}},
    {u"Controls update speed of active widgets in the expanded notch. Slower updates conserve your computer's battery.",
     {{u"Controls update speed of active widgets in the expanded panel. Slower updates conserve your computer's battery.",
       u"Bestimmt, wie oft sich die aktiven Widgets im geöffneten Panel aktualisieren. Langsamere Aktualisierung schont den Akku deines Computers.",
       u"Définit la vitesse de mise à jour des widgets actifs dans le panneau ouvert. Des mises à jour plus lentes économisent la batterie de votre ordinateur.",
       u"Controla la velocidad de actualización de los widgets activos en el panel abierto. Una actualización más lenta ahorra batería en tu ordenador.",
       u"Regola la velocità di aggiornamento dei widget attivi nel pannello aperto. Aggiornamenti più lenti risparmiano la batteria del tuo computer."}}},
    {u"Notch Surface", {{u"Panel Surface", u"Panel-Oberfläche", u"Surface du panneau", u"Superficie del panel", u"Superficie del pannello"}}},
    {u"Your camera notch is now a powerful, liquid-glass workspace. Hover to peek, tap to pin, and access tools instantly.",
     {{u"The top edge of your screen is now a powerful, liquid-glass workspace. Hover to peek, tap to pin, and access tools instantly.",
       u"Der obere Rand deines Bildschirms ist jetzt ein starker Arbeitsplatz aus flüssigem Glas. Zeig darauf für einen Blick, tippe zum Anheften und erreiche alle Werkzeuge sofort.",
       u"Le bord supérieur de votre écran est désormais un puissant espace de travail en verre liquide. Survolez pour jeter un œil, touchez pour épingler et accédez aussitôt à vos outils.",
       u"El borde superior de tu pantalla es ahora un potente espacio de trabajo de cristal líquido. Pasa el puntero para echar un vistazo, toca para fijar y accede a tus herramientas al instante.",
       u"Il bordo superiore dello schermo è ora un potente spazio di lavoro in vetro liquido. Passa il puntatore per sbirciare, tocca per fissare e accedi subito agli strumenti."}}},
};

// Why a switch of the system does not work.
constexpr Row obstacleRows[] = {
    {{u"This switch is not supported here.", u"Dieser Schalter wird hier nicht unterstützt.", u"Ce réglage n'est pas disponible ici.", u"Este interruptor no es compatible aquí.", u"Questo interruttore non è supportato qui."}},
    {{u"No audio output was found.", u"Keine Audioausgabe gefunden.", u"Aucune sortie audio trouvée.", u"No se encontró ninguna salida de audio.", u"Nessuna uscita audio trovata."}},
    {{u"This desktop has no dark mode to switch.", u"Dieser Desktop hat keinen umschaltbaren Dunkelmodus.", u"Ce bureau n'a pas de mode sombre à activer.", u"Este escritorio no tiene un modo oscuro que cambiar.", u"Questo desktop non ha una modalità scura da attivare."}},
    {{u"Dark mode is locked by the administrator.", u"Der Dunkelmodus ist vom Administrator gesperrt.", u"L'administrateur a verrouillé le mode sombre.", u"El administrador ha bloqueado el modo oscuro.", u"La modalità scura è bloccata dall'amministratore."}},
    {{u"Plasma's color scheme tool is missing.", u"Plasmas Werkzeug für Farbschemata fehlt.", u"L'outil de couleurs de Plasma est absent.", u"Falta la herramienta de color de Plasma.", u"Manca lo strumento colori di Plasma."}},
    {{u"There is no trash yet.", u"Es gibt noch keinen Papierkorb.", u"Il n'y a pas encore de corbeille.", u"Aún no hay papelera.", u"Non c'è ancora un cestino."}},
    {{u"Nothing keeps the display awake here.", u"Nichts hält hier den Bildschirm wach.", u"Rien ici ne garde l'écran allumé.", u"Nada mantiene aquí la pantalla encendida.", u"Nulla qui tiene acceso lo schermo."}},
};
// clang-format on

QString text(const char16_t *literal)
{
    return QString::fromUtf16(literal);
}

const QHash<QString, const Row *> &rowsByKey()
{
    static const QHash<QString, const Row *> table = [] {
        QHash<QString, const Row *> hash;
        for (const Row &row : rows)
            hash.insert(text(row.texts.front()), &row);
        for (const Row &row : panelRows)
            hash.insert(text(row.texts.front()), &row);
        for (const Row &row : obstacleRows)
            hash.insert(text(row.texts.front()), &row);
        return hash;
    }();
    return table;
}

const QHash<QString, const Row *> &edgeRowsByKey()
{
    static const QHash<QString, const Row *> table = [] {
        QHash<QString, const Row *> hash;
        for (const EdgeRow &edge : edgeRows)
            hash.insert(text(edge.key), &edge.row);
        return hash;
    }();
    return table;
}

} // namespace

QString rawValue(AppLanguage language)
{
    return languageTexts.text(language);
}

std::optional<AppLanguage> languageFromRawValue(const QString &raw)
{
    return languageTexts.value(raw);
}

QString label(AppLanguage language)
{
    return languageLabels.text(language);
}

QStringList translationKeys()
{
    QStringList keys;
    for (const Row &row : rows)
        keys.append(text(row.texts.front()));
    return keys;
}

QString translate(const QString &key, AppLanguage language, Housing housing)
{
    const Row *edge = housing == Housing::absent ? edgeRowsByKey().value(key) : nullptr;
    const Row *row = edge ? edge : rowsByKey().value(key);
    return row ? text(row->texts[static_cast<size_t>(language)]) : key;
}

} // namespace brimlight
