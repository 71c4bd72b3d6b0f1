#pragma once

// What is said about the connection to the device, in the six languages; the string table gives
// the texts their numbers.
namespace ZAFHartLib::strings {

inline constexpr const char* kNoConnection =
    "could not establish a connection|de|Verbindung konnte nicht aufgebaut werden|fr|la connexion "
    "n'a pas pu être établie|it|impossibile stabilire una connessione|es|no se pudo establecer la "
    "conexión|kt|setsuzoku dekimasen deshita";

// States of the connection.
inline constexpr const char* kNotConnected =
    "Not Connected|de|Nicht verbunden|fr|Non connecté|it|Non connesso|es|No conectado|kt|Mi-"
    "setsuzoku";
inline constexpr const char* kNoDeviceFound =
    "No Device Found|de|Kein Gerät gefunden|fr|Aucun appareil trouvé|it|Nessun dispositivo trovato|"
    "es|Ningún dispositivo encontrado|kt|Kiki ga mitsukarimasen";
inline constexpr const char* kWrongDevice =
    "Wrong Device|de|Falsches Gerät|fr|Mauvais appareil|it|Dispositivo errato|es|Dispositivo "
    "equivocado|kt|Chigau kiki";
inline constexpr const char* kConnecting =
    "Connecting|de|Verbindung wird aufgebaut|fr|Connexion en cours|it|Connessione in corso|es|"
    "Conectando|kt|Setsuzoku-chuu";
inline constexpr const char* kCheckDeviceType =
    "Check Connected Device Type|de|Typ des verbundenen Geräts wird geprüft|fr|Vérification du "
    "type de l'appareil connecté|it|Verifica del tipo di dispositivo connesso|es|Comprobando el "
    "tipo del dispositivo conectado|kt|Setsuzoku kiki no taipu o kakunin-chuu";
inline constexpr const char* kPreparingDisconnect =
    "Preparing Disconnect|de|Trennung wird vorbereitet|fr|Préparation de la déconnexion|it|"
    "Preparazione della disconnessione|es|Preparando la desconexión|kt|Setsudan junbi-chuu";
inline constexpr const char* kDisconnecting =
    "Disconnecting|de|Verbindung wird getrennt|fr|Déconnexion en cours|it|Disconnessione in corso|"
    "es|Desconectando|kt|Setsudan-chuu";
inline constexpr const char* kConnected =
    "Connected|de|Verbunden|fr|Connecté|it|Connesso|es|Conectado|kt|Setsuzoku-zumi";

// Why there is no connection, and what to do about it.
inline constexpr const char* kNoDeviceAnswers =
    "No device answers at address %{s1}. Check its power, its wiring and the address."
    "|de|Unter der Adresse %{s1} antwortet kein Gerät. Prüfen Sie Speisung, Verdrahtung und "
    "Adresse."
    "|fr|Aucun appareil ne répond à l'adresse %{s1}. Vérifiez son alimentation, son câblage et "
    "l'adresse."
    "|it|Nessun dispositivo risponde all'indirizzo %{s1}. Verificare l'alimentazione, il cablaggio "
    "e l'indirizzo."
    "|es|Ningún dispositivo responde en la dirección %{s1}. Compruebe su alimentación, su cableado "
    "y la dirección."
    "|kt|Adoresu %{s1} de kiki ga outou shimasen. Dengen, haisen, adoresu o kakunin shite kudasai.";
inline constexpr const char* kNoDeviceReason =
    "The device at address %{s1} cannot be reached: %{s2}. Check the link's name, its cable or "
    "network, and whether somebody else uses it."
    "|de|Das Gerät unter der Adresse %{s1} ist nicht erreichbar: %{s2}. Prüfen Sie den Namen der "
    "Verbindung, Kabel oder Netz, und ob jemand anders sie verwendet."
    "|fr|L'appareil à l'adresse %{s1} est inaccessible : %{s2}. Vérifiez le nom de la liaison, son "
    "câble ou réseau, et si quelqu'un d'autre l'utilise."
    "|it|Il dispositivo all'indirizzo %{s1} non è raggiungibile: %{s2}. Verificare il nome del "
    "collegamento, il cavo o la rete, e se qualcun altro lo usa."
    "|es|El dispositivo en la dirección %{s1} no es accesible: %{s2}. Compruebe el nombre del "
    "enlace, su cable o red, y si alguien más lo usa."
    "|kt|Adoresu %{s1} no kiki ni todokimasen: %{s2}. Rinku no namae, keeburu ya nettowaaku, hoka "
    "no shiyousha o kakunin shite kudasai.";
inline constexpr const char* kWrongDeviceConnected =
    "The wrong device is connected. The DTM is for %{s1}, connected is %{s2}. Connect the device "
    "that the DTM is for, or use the DTM for this one. Nothing is written to it."
    "|de|Das falsche Gerät ist verbunden. Der DTM ist für %{s1}, verbunden ist %{s2}. Verbinden "
    "Sie das Gerät, für das der DTM ist, oder verwenden Sie den DTM für dieses. Nichts wird "
    "dorthin geschrieben."
    "|fr|Le mauvais appareil est connecté. Le DTM est pour %{s1}, l'appareil connecté est %{s2}. "
    "Connectez l'appareil prévu pour le DTM, ou utilisez le DTM de celui-ci. Rien n'y est écrit."
    "|it|È connesso il dispositivo errato. Il DTM è per %{s1}, è connesso %{s2}. Connettere il "
    "dispositivo previsto per il DTM, o usare il DTM per questo. Non vi viene scritto nulla."
    "|es|Está conectado el dispositivo equivocado. El DTM es para %{s1}, está conectado %{s2}. "
    "Conecte el dispositivo previsto para el DTM, o use el DTM de este. No se escribe nada en él."
    "|kt|Chigau kiki ga setsuzoku sarete imasu. DTM wa %{s1} you desu ga, setsuzoku sareta no wa "
    "%{s2} desu. DTM ni au kiki o setsuzoku suru ka, kono kiki no DTM o tsukatte kudasai. Nani mo "
    "kakikomimasen.";
inline constexpr const char* kOtherDevice =
    "Another device is connected than before: %{s2} instead of %{s1}. Connect the former one, or "
    "accept this one and read it anew. Nothing is written to it."
    "|de|Ein anderes Gerät als zuvor ist verbunden: %{s2} statt %{s1}. Verbinden Sie das frühere, "
    "oder übernehmen Sie dieses und lesen Sie es neu. Nichts wird dorthin geschrieben."
    "|fr|Un autre appareil qu'avant est connecté : %{s2} au lieu de %{s1}. Connectez le précédent, "
    "ou acceptez celui-ci et relisez-le. Rien n'y est écrit."
    "|it|È connesso un dispositivo diverso da prima: %{s2} invece di %{s1}. Connettere quello "
    "precedente, o accettare questo e rileggerlo. Non vi viene scritto nulla."
    "|es|Está conectado otro dispositivo que antes: %{s2} en lugar de %{s1}. Conecte el anterior, "
    "o acepte este y léalo de nuevo. No se escribe nada en él."
    "|kt|Mae to chigau kiki desu: %{s1} de wa naku %{s2}. Mae no kiki o setsuzoku suru ka, kono "
    "kiki o ukeirete yominaoshite kudasai. Nani mo kakikomimasen.";
inline constexpr const char* kDisconnected =
    "The DTM is disconnected from its device. Connect it first."
    "|de|Der DTM ist von seinem Gerät getrennt. Stellen Sie zuerst die Verbindung her."
    "|fr|Le DTM est déconnecté de son appareil. Connectez-le d'abord."
    "|it|Il DTM è disconnesso dal suo dispositivo. Connetterlo prima."
    "|es|El DTM está desconectado de su dispositivo. Conéctelo primero."
    "|kt|DTM wa kiki kara setsudan sarete imasu. Saki ni setsuzoku shite kudasai.";
inline constexpr const char* kIdentityRefused =
    "The device at address %{s1} answers, but refuses command %{s3}, which asks who it is, with "
    "response code %{s2}. Wait and try again: codes 32 to 34 are those of a busy device."
    "|de|Das Gerät unter der Adresse %{s1} antwortet, verweigert aber Kommando %{s3}, das fragt, "
    "wer es ist, mit dem Antwortcode %{s2}. Warten Sie und versuchen Sie es noch einmal: 32 bis 34 "
    "sind die Codes eines beschäftigten Geräts."
    "|fr|L'appareil à l'adresse %{s1} répond, mais refuse la commande %{s3}, qui demande son "
    "identité, avec le code de réponse %{s2}. Attendez et réessayez : 32 à 34 sont les codes d'un "
    "appareil occupé."
    "|it|Il dispositivo all'indirizzo %{s1} risponde, ma rifiuta il comando %{s3}, che chiede "
    "l'identità, con il codice di risposta %{s2}. Attendere e riprovare: 32-34 sono i codici di un "
    "dispositivo occupato."
    "|es|El dispositivo en la dirección %{s1} responde, pero rechaza el comando %{s3}, que "
    "pregunta "
    "su identidad, con el código de respuesta %{s2}. Espere e inténtelo de nuevo: 32 a 34 son los "
    "códigos de un dispositivo ocupado."
    "|kt|Adoresu %{s1} no kiki wa outou shimasu ga, kiki o kiku komando %{s3} o outou koodo %{s2} "
    "de kyohi shimashita. Matte kara mou ichido tameshite kudasai: 32 kara 34 wa bijii no kiki no "
    "koodo desu.";
inline constexpr const char* kIdentityDamaged =
    "The device at address %{s1} answers, but who it is cannot be read (command %{s3}, first "
    "status byte %{s2}). Check the line for disturbances."
    "|de|Das Gerät unter der Adresse %{s1} antwortet, aber wer es ist, lässt sich nicht lesen "
    "(Kommando %{s3}, erstes Statusbyte %{s2}). Prüfen Sie die Leitung auf Störungen."
    "|fr|L'appareil à l'adresse %{s1} répond, mais son identité est illisible (commande %{s3}, "
    "premier octet d'état %{s2}). Vérifiez si la ligne est perturbée."
    "|it|Il dispositivo all'indirizzo %{s1} risponde, ma la sua identità non è leggibile (comando "
    "%{s3}, primo byte di stato %{s2}). Verificare se la linea è disturbata."
    "|es|El dispositivo en la dirección %{s1} responde, pero su identidad no se puede leer "
    "(comando %{s3}, primer byte de estado %{s2}). Compruebe si la línea está perturbada."
    "|kt|Adoresu %{s1} no kiki wa outou shimasu ga, dono kiki ka yomemasen (komando %{s3}, saisho "
    "no suteetasu baito %{s2}). Kaisen no noizu o kakunin shite kudasai.";
inline constexpr const char* kWaiting =
    "Waiting ...|de|Warte ...|fr|Attente ...|it|Attesa ...|es|Esperando ...|kt|Taiki-chuu ...";

// Titles and helps of the messages.
inline constexpr const char* kTitleError = "Error|de|Fehler|fr|Erreur|it|Errore|es|Error|kt|Eraa";
inline constexpr const char* kHelpError =
    "The action could not be completed. Check the connection to the device and try again."
    "|de|Die Aktion konnte nicht abgeschlossen werden. Prüfen Sie die Verbindung zum Gerät und "
    "versuchen Sie es erneut."
    "|fr|L'action n'a pas pu être terminée. Vérifiez la connexion à l'appareil et réessayez."
    "|it|L'azione non è stata completata. Verificare la connessione al dispositivo e riprovare."
    "|es|La acción no se pudo completar. Compruebe la conexión al dispositivo e inténtelo de nuevo."
    "|kt|Sousa o kanryou dekimasen deshita. Kiki to no setsuzoku o kakunin shite, mou ichido "
    "tameshite kudasai.";
inline constexpr const char* kTitleCriticalError =
    "Critical Error|de|Kritischer Fehler|fr|Erreur critique|it|Errore critico|es|Error crítico|kt|"
    "Juudai na eraa";
inline constexpr const char* kHelpCriticalError =
    "Communication with the device is not possible. Check the device, its address and the "
    "connection."
    "|de|Eine Kommunikation mit dem Gerät ist nicht möglich. Prüfen Sie das Gerät, seine "
    "Adresse und die Verbindung."
    "|fr|La communication avec l'appareil est impossible. Vérifiez l'appareil, son adresse et la "
    "connexion."
    "|it|La comunicazione con il dispositivo non è possibile. Verificare il dispositivo, il suo "
    "indirizzo e la connessione."
    "|es|La comunicación con el dispositivo no es posible. Compruebe el dispositivo, su dirección "
    "y la conexión."
    "|kt|Kiki to tsuushin dekimasen. Kiki, adoresu, setsuzoku o kakunin shite kudasai.";

}  // namespace ZAFHartLib::strings
