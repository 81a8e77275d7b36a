<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CameraDialog</name>
    <message>
        <source>Connect to Camera</source>
        <translation>Conectar con una cámara</translation>
    </message>
    <message>
        <source>Reachable cameras</source>
        <translation>Cámaras accesibles</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Conectar</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message>
        <source>%1 %2 (%3), %4</source>
        <translation>%1 %2 (%3), %4</translation>
    </message>
    <message>
        <source>No camera answers. Check its power, its cable and the network interface, then rescan.</source>
        <translation>No responde ninguna cámara. Compruebe su alimentación, su cable y la interfaz de red, y busque de nuevo.</translation>
    </message>
    <message>
        <source>%1, available</source>
        <translation>%1, disponible</translation>
    </message>
    <message>
        <source>%1, in use by another program, opens read-only</source>
        <translation>%1, en uso por otro programa, se abre en modo de solo lectura</translation>
    </message>
    <message>
        <source>%1, in use by a program at %2, opens read-only</source>
        <translation>%1, en uso por un programa en %2, se abre en modo de solo lectura</translation>
    </message>
    <message>
        <source>%1, held by another program for itself</source>
        <translation>%1, reservada por otro programa</translation>
    </message>
    <message>
        <source>%1, not in a subnet of this computer</source>
        <translation>%1, en ninguna subred de este ordenador</translation>
    </message>
    <message>
        <source>%1, does not answer</source>
        <translation>%1, no responde</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>Waiting until the opening of a camera has ended…</source>
        <translation>Esperando a que termine la apertura de una cámara…</translation>
    </message>
</context>
<context>
    <name>ColoursMenu</name>
    <message>
        <source>C&amp;olours</source>
        <translation>C&amp;olores</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Como el &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
</context>
<context>
    <name>DescriptionPane</name>
    <message>
        <source>Integer</source>
        <translation>Entero</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Booleano</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>Número de coma flotante</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Enumeración</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Not implemented</source>
        <translation>No implementado</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lectura y escritura</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>Solo escritura</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>%1 to %2%3</source>
        <translation>%1 a %2%3</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Incremento</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Visibilidad</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Description of the current feature</source>
        <translation>Descripción del parámetro actual</translation>
    </message>
</context>
<context>
    <name>IpConfiguration</name>
    <message>
        <source>The reason is not known.</source>
        <translation>El motivo no se conoce.</translation>
    </message>
    <message>
        <source>This camera has no features for an IP configuration</source>
        <translation>Esta cámara no tiene parámetros para una configuración IP</translation>
    </message>
    <message>
        <source>The camera does not allow its IP configuration to be changed now</source>
        <translation>La cámara no permite cambiar ahora su configuración IP</translation>
    </message>
    <message>
        <source>The IP configuration was not changed. %1</source>
        <translation>La configuración IP no se ha cambiado. %1</translation>
    </message>
</context>
<context>
    <name>Levels</name>
    <message>
        <source>&amp;Beginner</source>
        <translation>&amp;Principiante</translation>
    </message>
    <message>
        <source>&amp;Expert</source>
        <translation>&amp;Experto</translation>
    </message>
    <message>
        <source>&amp;Guru</source>
        <translation>&amp;Gurú</translation>
    </message>
    <message>
        <source>&amp;All Features</source>
        <translation>&amp;Todos los parámetros</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Features</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Copy &amp;Tree to Clipboard</source>
        <translation>Copiar el árbol al &amp;portapapeles</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open Description File…</source>
        <translation>&amp;Abrir un archivo de descripción…</translation>
    </message>
    <message>
        <source>&amp;Connect to Camera…</source>
        <translation>&amp;Conectar con una cámara…</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>C&amp;lose Camera</source>
        <translation>C&amp;errar la cámara</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Paneles</translation>
    </message>
    <message>
        <source>&amp;Monitor Mode</source>
        <translation>Modo de &amp;supervisión</translation>
    </message>
    <message>
        <source>Polling re-reads all features, not only the volatile ones</source>
        <translation>El sondeo vuelve a leer todos los parámetros, no solo los volátiles</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Cámara</translation>
    </message>
    <message>
        <source>&amp;IP Configuration…</source>
        <translation>Configuración &amp;IP…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Show All Messages Again</source>
        <translation>&amp;Mostrar de nuevo todos los mensajes</translation>
    </message>
    <message>
        <source>Brings back the messages that were silenced</source>
        <translation>Recupera los mensajes que se habían silenciado</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Acerca de…</translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation>&amp;Nivel</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 – Zelto Viewer</source>
        <translation>%1 – Zelto Viewer</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>Sin cámara</translation>
    </message>
    <message>
        <source>Zelto Viewer</source>
        <translation>Zelto Viewer</translation>
    </message>
    <message>
        <source>Open Description File</source>
        <translation>Abrir un archivo de descripción</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>Descripciones de cámara (*.xml *.zip);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>Close Camera</source>
        <translation>Cerrar la cámara</translation>
    </message>
    <message>
        <source>Close the camera %1?
Changes that were not saved to one of its user sets last until it is switched off.</source>
        <translation>¿Cerrar la cámara %1?
Los cambios que no se han guardado en uno de sus conjuntos de usuario duran hasta que se apague.</translation>
    </message>
    <message>
        <source>IP Configuration</source>
        <translation>Configuración IP</translation>
    </message>
    <message>
        <source>The new IP configuration takes effect after the camera restarts.</source>
        <translation>La nueva configuración IP surte efecto cuando la cámara se reinicie.</translation>
    </message>
    <message>
        <source>Address, mask and gateway that the camera starts with</source>
        <translation>Dirección, máscara y puerta de enlace con las que arranca la cámara</translation>
    </message>
    <message>
        <source>No camera is open</source>
        <translation>No hay ninguna cámara abierta</translation>
    </message>
    <message>
        <source>The camera was lost</source>
        <translation>Se ha perdido la cámara</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s)</source>
        <translation>
            <numerusform>%n resultado</numerusform>
            <numerusform>%n resultados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s), %1 of them at a higher level</source>
        <translation>
            <numerusform>%n resultado, %1 de ellos en un nivel superior</numerusform>
            <numerusform>%n resultados, %1 de ellos en un nivel superior</numerusform>
        </translation>
    </message>
    <message>
        <source>All messages are shown again.</source>
        <translation>Se vuelven a mostrar todos los mensajes.</translation>
    </message>
    <message>
        <source>About Zelto Viewer</source>
        <translation>Acerca de Zelto Viewer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;Shows a camera's features in a tree, for GigE Vision and USB3 Vision cameras and for any GenICam camera description file.</source>
        <translation>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;Muestra los parámetros de una cámara en un árbol, para cámaras GigE Vision y USB3 Vision y para cualquier archivo de descripción de cámara GenICam.</translation>
    </message>
    <message>
        <source>No camera is open.
Open a description file or connect to a camera (menu File).</source>
        <translation>No hay ninguna cámara abierta.
Abra un archivo de descripción o conecte con una cámara (menú Archivo).</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Reconectar</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>The tree was copied to the clipboard.</source>
        <translation>El árbol se ha copiado al portapapeles.</translation>
    </message>
    <message>
        <source>The open camera has no such feature.</source>
        <translation>La cámara abierta no tiene ese parámetro.</translation>
    </message>
    <message>
        <source>&amp;Take Control</source>
        <translation>&amp;Tomar el control</translation>
    </message>
    <message>
        <source>Take Control</source>
        <translation>Tomar el control</translation>
    </message>
    <message>
        <source>The camera is open read-only. No program controls it now.</source>
        <translation>La cámara está abierta en modo de solo lectura. Ahora ningún programa la controla.</translation>
    </message>
    <message>
        <source>The camera is held by another program and open read-only.</source>
        <translation>Otro programa ocupa la cámara; está abierta en modo de solo lectura.</translation>
    </message>
    <message>
        <source>The camera is held by another program at %1 and open read-only.</source>
        <translation>Un programa en %1 ocupa la cámara; está abierta en modo de solo lectura.</translation>
    </message>
    <message>
        <source>Taking control of the camera…</source>
        <translation>Tomando el control de la cámara…</translation>
    </message>
    <message>
        <source>The control of the camera was not taken: %1</source>
        <translation>No se ha tomado el control de la cámara: %1</translation>
    </message>
    <message>
        <source>Allows the camera's features to be changed</source>
        <translation>Permite cambiar los parámetros de la cámara</translation>
    </message>
    <message>
        <source>Only of a camera that is open read-only and free</source>
        <translation>Solo de una cámara libre que esté abierta en modo de solo lectura</translation>
    </message>
    <message>
        <source>Open R&amp;ecent</source>
        <translation>Abrir u&amp;no reciente</translation>
    </message>
    <message>
        <source>How many features are shown</source>
        <translation>Cuántos parámetros se muestran</translation>
    </message>
    <message>
        <source>Level: %1</source>
        <translation>Nivel: %1</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>la cámara %1</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>la cámara integrada</translation>
    </message>
    <message>
        <source>The opening was cancelled.</source>
        <translation>Se ha cancelado la apertura.</translation>
    </message>
    <message>
        <source>%1[*] – %2 – Zelto Viewer</source>
        <translation>%1[*] – %2 – Zelto Viewer</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Este parámetro no se muestra en el nivel actual</translation>
    </message>
    <message>
        <source>Camera Settings</source>
        <translation>Ajustes de la cámara</translation>
    </message>
    <message>
        <source>Values of the camera differ from the settings file %1.
Close without saving them?</source>
        <translation>Hay valores de la cámara que difieren del archivo de ajustes %1.
¿Cerrar sin guardarlos?</translation>
    </message>
    <message>
        <source>The camera was sending images when it was lost.</source>
        <translation>La cámara estaba enviando imágenes cuando se perdió.</translation>
    </message>
    <message>
        <source>Start Images</source>
        <translation>Iniciar las imágenes</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message numerus="yes">
        <source>(%n earlier message(s))</source>
        <translation>
            <numerusform>(%n mensaje anterior)</numerusform>
            <numerusform>(%n mensajes anteriores)</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>Mensaje: %1</translation>
    </message>
</context>
<context>
    <name>VisitedFeaturesPanel</name>
    <message>
        <source>Visited Features</source>
        <translation>Parámetros visitados</translation>
    </message>
    <message>
        <source>The features you visited last; a click goes back</source>
        <translation>Los últimos parámetros visitados; un clic vuelve a ellos</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Este parámetro no se muestra en el nivel actual</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Cannot write %1.</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>No se puede escribir en la salida estándar.</translation>
    </message>
    <message>
        <source>Value Editors – Zelto Viewer</source>
        <translation>Editores de valores – Zelto Viewer</translation>
    </message>
</context>
<context>
    <name>CommandQuestion</name>
    <message>
        <source>Restart the camera?
The connection breaks, and changes that were not saved to one of its user sets are lost.</source>
        <translation>¿Reiniciar la cámara?
La conexión se interrumpe, y los cambios que no se han guardado en uno de sus conjuntos de usuario se pierden.</translation>
    </message>
    <message>
        <source>Reset the camera to its factory settings?
All settings are lost, those saved to its user sets too.</source>
        <translation>¿Restablecer los ajustes de fábrica de la cámara?
Se pierden todos los ajustes, también los de sus conjuntos de usuario.</translation>
    </message>
    <message>
        <source>Load the user set "%1"?
It overwrites the present settings.</source>
        <translation>¿Cargar el conjunto de usuario «%1»?
Sustituye los ajustes actuales.</translation>
    </message>
    <message>
        <source>Save the present settings to the user set "%1"?
They overwrite what is saved there.</source>
        <translation>¿Guardar los ajustes actuales en el conjunto de usuario «%1»?
Sustituyen lo que hay guardado en él.</translation>
    </message>
    <message>
        <source>Write to the camera's file "%1"?
What the file holds is overwritten.</source>
        <translation>¿Escribir en el archivo «%1» de la cámara?
Se sustituye el contenido del archivo.</translation>
    </message>
    <message>
        <source>Delete the camera's file "%1"?
What the file holds is lost.</source>
        <translation>¿Borrar el archivo «%1» de la cámara?
Se pierde el contenido del archivo.</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>&amp;Expand All</source>
        <translation>E&amp;xpandir todo</translation>
    </message>
    <message>
        <source>Collapse &amp;All</source>
        <translation>&amp;Contraer todo</translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation>Copiar el &amp;nombre</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>Copiar el &amp;valor</translation>
    </message>
    <message>
        <source>Copy &amp;Full Name</source>
        <translation>Copiar el nombre &amp;completo</translation>
    </message>
    <message>
        <source>&amp;Go To Feature</source>
        <translation>&amp;Ir al parámetro</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>Este parámetro no se muestra en el nivel actual</translation>
    </message>
</context>
<context>
    <name>RecentSources</name>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
    <message>
        <source>The file does not exist at present</source>
        <translation>El archivo no existe en este momento</translation>
    </message>
</context>
<context>
    <name>OpeningPage</name>
    <message>
        <source>Opening %1</source>
        <translation>Abriendo %1</translation>
    </message>
    <message>
        <source>Waiting until the search for another camera, or its opening, has ended…</source>
        <translation>Esperando a que termine la búsqueda o la apertura de otra cámara…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Reading the description…</source>
        <translation>Leyendo la descripción…</translation>
    </message>
    <message>
        <source>Reading the features: %1 of %2</source>
        <translation>Leyendo los parámetros: %1 de %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save Settings…</source>
        <translation>&amp;Guardar los ajustes…</translation>
    </message>
    <message>
        <source>&amp;Load Settings…</source>
        <translation>&amp;Cargar ajustes…</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Saves all values that can be changed to a text file</source>
        <translation>Guarda en un archivo de texto todos los valores que se pueden cambiar</translation>
    </message>
    <message>
        <source>Brings the values in a file to the camera</source>
        <translation>Lleva a la cámara los valores de un archivo</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Guardar los ajustes</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>Cargar ajustes</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>Ajustes de cámara (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1: no contiene ajustes</translation>
    </message>
    <message>
        <source>These are settings of the model %1, and the open camera is a %2.
Load them all the same?</source>
        <translation>Son ajustes del modelo %1, y la cámara abierta es una %2.
¿Cargarlos de todos modos?</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Cargar</translation>
    </message>
    <message>
        <source>No settings were saved.</source>
        <translation>No se ha guardado ningún ajuste.</translation>
    </message>
    <message>
        <source>The settings were saved, but for some that cannot be read.</source>
        <translation>Se han guardado los ajustes, salvo algunos que no se pueden leer.</translation>
    </message>
    <message>
        <source>The settings were saved to %1.</source>
        <translation>Los ajustes se han guardado en %1.</translation>
    </message>
    <message>
        <source>What was before is back. %1</source>
        <translation>Se ha restablecido lo anterior. %1</translation>
    </message>
    <message>
        <source>Settings loaded. %1</source>
        <translation>Ajustes cargados. %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>no feature %1</source>
        <translation>no existe el parámetro %1</translation>
    </message>
    <message>
        <source>no feature %1; did you mean %2?</source>
        <translation>no existe el parámetro %1; ¿quería decir %2?</translation>
    </message>
    <message>
        <source>%1: this is no feature that has a value</source>
        <translation>%1: no es un parámetro que tenga un valor</translation>
    </message>
    <message>
        <source>%1: it cannot be read now</source>
        <translation>%1: no se puede leer ahora</translation>
    </message>
    <message>
        <source>%1: the camera does not answer</source>
        <translation>%1: la cámara no responde</translation>
    </message>
    <message>
        <source>%1: this is no command</source>
        <translation>%1: no es un comando</translation>
    </message>
    <message>
        <source>the camera does not answer</source>
        <translation>la cámara no responde</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrumpido</translation>
    </message>
    <message>
        <source>standard input: %1</source>
        <translation>entrada estándar: %1</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1: no contiene ajustes</translation>
    </message>
    <message>
        <source>%1: these are settings of %2, and this is %3; --force loads them all the same</source>
        <translation>%1: son ajustes de %2, y esta es %3; --force los carga de todos modos</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>No se puede escribir en la salida estándar.</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten</source>
        <translation>%1 ya existe, y no se sobrescribe nada</translation>
    </message>
    <message>
        <source>this camera delivers no images</source>
        <translation>esta cámara no proporciona imágenes</translation>
    </message>
    <message>
        <source>no image came</source>
        <translation>no ha llegado ninguna imagen</translation>
    </message>
</context>
<context>
    <name>Comparison</name>
    <message>
        <source>Opening %1…</source>
        <translation>Abriendo %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Compare &amp;With</source>
        <translation>Co&amp;mparar con</translation>
    </message>
    <message>
        <source>A &amp;File…</source>
        <translation>Un &amp;archivo…</translation>
    </message>
    <message>
        <source>The State When &amp;Opened</source>
        <translation>El estado al a&amp;brir</translation>
    </message>
    <message>
        <source>Another &amp;Description…</source>
        <translation>Otra &amp;descripción…</translation>
    </message>
    <message>
        <source>Another &amp;Camera…</source>
        <translation>Otra &amp;cámara…</translation>
    </message>
    <message>
        <source>Compare With a Settings File</source>
        <translation>Comparar con un archivo de ajustes</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>Ajustes de cámara (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>the state when opened</source>
        <translation>el estado al abrir</translation>
    </message>
    <message>
        <source>Compare With Another Description</source>
        <translation>Comparar con otra descripción</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>Descripciones de cámara (*.xml *.zip);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer %1</translation>
    </message>
    <message>
        <source>what was before</source>
        <translation>lo que había antes</translation>
    </message>
</context>
<context>
    <name>WatchModel</name>
    <message>
        <source>Feature</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
</context>
<context>
    <name>WatchPlot</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <translation>hace %1</translation>
    </message>
    <message>
        <source>now</source>
        <translation>ahora</translation>
    </message>
    <message>
        <source>Plot of the watched features</source>
        <translation>Gráfica de los parámetros supervisados</translation>
    </message>
    <message>
        <source>Make a feature current in the tree, and add it.</source>
        <translation>Seleccione un parámetro en el árbol y añádalo.</translation>
    </message>
</context>
<context>
    <name>WatchPanel</name>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausa</translation>
    </message>
    <message>
        <source>Re&amp;start</source>
        <translation>&amp;Reiniciar</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>&amp;Más</translation>
    </message>
    <message>
        <source>Save as &amp;CSV…</source>
        <translation>Guardar como &amp;CSV…</translation>
    </message>
    <message>
        <source>Save as P&amp;NG…</source>
        <translation>Guardar como P&amp;NG…</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Supervisión</translation>
    </message>
    <message>
        <source>Values of chosen features over time</source>
        <translation>Valores de los parámetros elegidos a lo largo del tiempo</translation>
    </message>
    <message>
        <source>Forgets the values so far</source>
        <translation>Olvida los valores registrados hasta ahora</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Last minute</source>
        <translation>Último minuto</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>Últimos 10 minutos</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>Última hora</translation>
    </message>
    <message>
        <source>Time that the plot shows</source>
        <translation>Tiempo que muestra la gráfica</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, %1</source>
        <translation>Supervisa el parámetro actual del árbol, %1</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, if it is a number or a Boolean</source>
        <translation>Supervisa el parámetro actual del árbol, si es un número o un booleano</translation>
    </message>
    <message>
        <source>Save Watched Values</source>
        <translation>Guardar los valores supervisados</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valores separados por comas (*.csv)</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Guardar la gráfica</translation>
    </message>
    <message>
        <source>Images (*.png)</source>
        <translation>Imágenes (*.png)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>LanguagesMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Como el &amp;sistema</translation>
    </message>
</context>
<context>
    <name>FrameFile</name>
    <message>
        <source>The pixel format %1 cannot be saved in this kind of file. Its bytes can, as a file whose name ends in .raw.</source>
        <translation>El formato de píxel %1 no se puede guardar en este tipo de archivo. Sus bytes sí, en un archivo cuyo nombre termine en .raw.</translation>
    </message>
    <message>
        <source>There is nothing in the image that could be saved.</source>
        <translation>En la imagen no hay nada que se pueda guardar.</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten.</source>
        <translation>%1 ya existe, y no se sobrescribe nada.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>FrameRecorder</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>No se puede crear ninguna carpeta en %1.</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histograma</translation>
    </message>
    <message>
        <source>Black: %1 (%2 %)   Saturated: %3 (%4 %)</source>
        <translation>Negros: %1 (%2 %)   Saturados: %3 (%4 %)</translation>
    </message>
</context>
<context>
    <name>ImagePane</name>
    <message>
        <source>%1mean %2, deviation %3</source>
        <translation>%1media %2, desviación %3</translation>
    </message>
    <message>
        <source>sharpness %1</source>
        <translation>nitidez %1</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>St&amp;art Images</source>
        <translation>I&amp;niciar las imágenes</translation>
    </message>
    <message>
        <source>Shows what the camera sees</source>
        <translation>Muestra lo que ve la cámara</translation>
    </message>
    <message>
        <source>Si&amp;ngle Image</source>
        <translation>&amp;Una sola imagen</translation>
    </message>
    <message>
        <source>Takes one image</source>
        <translation>Toma una imagen</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Shows all of the image</source>
        <translation>Muestra toda la imagen</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Shows each pixel as one of the screen</source>
        <translation>Muestra cada píxel como uno de la pantalla</translation>
    </message>
    <message>
        <source>Crosshair</source>
        <translation>Cruz</translation>
    </message>
    <message>
        <source>Marks the middle of the image</source>
        <translation>Marca el centro de la imagen</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Divides the image into thirds</source>
        <translation>Divide la imagen en tercios</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Dragging moves the image</source>
        <translation>Al arrastrar se mueve la imagen</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Dragging draws a rectangle, of which mean, deviation and sharpness are shown</source>
        <translation>Al arrastrar se dibuja un rectángulo, del que se muestran la media, la desviación y la nitidez</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Dragging draws a line, along which the values are shown</source>
        <translation>Al arrastrar se dibuja una línea, a lo largo de la cual se muestran los valores</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histograma</translation>
    </message>
    <message>
        <source>Shows the histogram, gamma and contrast</source>
        <translation>Muestra el histograma, la gamma y el contraste</translation>
    </message>
    <message>
        <source>Mark Extremes</source>
        <translation>Marcar los extremos</translation>
    </message>
    <message>
        <source>Marks saturated pixels red and black ones blue</source>
        <translation>Marca en rojo los píxeles saturados y en azul los negros</translation>
    </message>
    <message>
        <source>&amp;Full Frame</source>
        <translation>Imagen c&amp;ompleta</translation>
    </message>
    <message>
        <source>Makes all of the sensor the region of interest; dragging in the image with Ctrl makes it what is drawn</source>
        <translation>Convierte todo el sensor en la región de interés; al arrastrar en la imagen con Ctrl, la región de interés pasa a ser lo dibujado</translation>
    </message>
    <message>
        <source>&amp;Logarithmic</source>
        <translation>&amp;Logarítmico</translation>
    </message>
    <message>
        <source>Shows rare values as well</source>
        <translation>Muestra también los valores poco frecuentes</translation>
    </message>
    <message>
        <source>Statistics of the rectangle</source>
        <translation>Estadística del rectángulo</translation>
    </message>
    <message>
        <source>Of the drawn rectangle. Sharpness: steps between neighbours, in percent of the mean</source>
        <translation>Del rectángulo dibujado. Nitidez: saltos entre vecinos, en porcentaje de la media</translation>
    </message>
    <message>
        <source>Pixel under the cursor</source>
        <translation>Píxel bajo el cursor</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>No hay ninguna cámara abierta.</translation>
    </message>
    <message>
        <source>This camera delivers no images.</source>
        <translation>Esta cámara no proporciona imágenes.</translation>
    </message>
    <message>
        <source>Start the images with F9.</source>
        <translation>Inicie las imágenes con F9.</translation>
    </message>
    <message>
        <source>St&amp;op Images</source>
        <translation>&amp;Detener las imágenes</translation>
    </message>
    <message>
        <source>%1 × %2, %3, frame %4, %5 %</source>
        <translation>%1 × %2, %3, imagen %4, %5 %</translation>
    </message>
    <message>
        <source>x %1, y %2:  %3</source>
        <translation>x %1, y %2:  %3</translation>
    </message>
</context>
<context>
    <name>ImageSaving</name>
    <message>
        <source>Save I&amp;mage…</source>
        <translation>Gua&amp;rdar la imagen…</translation>
    </message>
    <message>
        <source>Saves the image: what is shown as PNG, the raw values as TIFF, PGM or PPM</source>
        <translation>Guarda la imagen: lo que se muestra, como PNG; los valores sin procesar, como TIFF, PGM o PPM</translation>
    </message>
    <message>
        <source>Keeps the next images as files, with a table of their numbers and times</source>
        <translation>Guarda las próximas imágenes como archivos, con una tabla de sus números y marcas de tiempo</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>Detener la gra&amp;bación</translation>
    </message>
    <message>
        <source>&amp;Record Images…</source>
        <translation>Gra&amp;bar imágenes…</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Guardar la imagen</translation>
    </message>
    <message>
        <source>As shown (*.png);;Raw values (*.tif *.tiff);;Raw values (*.pgm *.ppm);;Bytes (*.raw);;All files (*)</source>
        <translation>Como se muestra (*.png);;Valores sin procesar (*.tif *.tiff);;Valores sin procesar (*.pgm *.ppm);;Bytes (*.raw);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The image was saved to %1.</source>
        <translation>La imagen se ha guardado en %1.</translation>
    </message>
    <message>
        <source>Images recorded: %1 of %2</source>
        <translation>Imágenes grabadas: %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>The recording ended after %n image(s). %1</source>
        <translation>
            <numerusform>La grabación ha terminado tras %n imagen. %1</numerusform>
            <numerusform>La grabación ha terminado tras %n imágenes. %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were left out, since the disk was too slow.</source>
        <translation>
            <numerusform>Se ha omitido %n imagen, porque el disco era demasiado lento.</numerusform>
            <numerusform>Se han omitido %n imágenes, porque el disco era demasiado lento.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were recorded to %1.</source>
        <translation>
            <numerusform>Se ha grabado %n imagen en %1.</numerusform>
            <numerusform>Se han grabado %n imágenes en %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageView</name>
    <message>
        <source>Camera image</source>
        <translation>Imagen de la cámara</translation>
    </message>
    <message>
        <source>An image of %1 × %2 pixels cannot be shown.</source>
        <translation>No se puede mostrar una imagen de %1 × %2 píxeles.</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be shown. Its bytes can be saved.</source>
        <translation>El formato de píxel %1 no se puede mostrar. Sus bytes se pueden guardar.</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>Ga&amp;mma</source>
        <translation>Ga&amp;mma</translation>
    </message>
    <message>
        <source>Makes dark parts of what is shown brighter</source>
        <translation>Aclara las partes oscuras de lo que se muestra</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>&amp;Negro</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown black</source>
        <translation>La fracción del valor máximo que se muestra en negro</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Blanco</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown white</source>
        <translation>La fracción del valor máximo que se muestra en blanco</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Shows values as they are: gamma and contrast change nothing of the camera</source>
        <translation>Muestra los valores tal como son: la gamma y el contraste no cambian nada en la cámara</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Line profile</source>
        <translation>Perfil de línea</translation>
    </message>
    <message>
        <source>The raw values along the drawn line</source>
        <translation>Los valores sin procesar a lo largo de la línea dibujada</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record Images</source>
        <translation>Grabar imágenes</translation>
    </message>
    <message>
        <source>The images get a new folder in this one; nothing is overwritten</source>
        <translation>Las imágenes van a una carpeta nueva dentro de esta; no se sobrescribe nada</translation>
    </message>
    <message>
        <source>TIFF, raw values</source>
        <translation>TIFF, valores sin procesar</translation>
    </message>
    <message>
        <source>PGM or PPM, raw values</source>
        <translation>PGM o PPM, valores sin procesar</translation>
    </message>
    <message>
        <source>PNG, as shown with 8 bits</source>
        <translation>PNG, como se muestra, con 8 bits</translation>
    </message>
    <message>
        <source>Bytes as they came</source>
        <translation>Bytes tal como llegaron</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Examinar…</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Grabar</translation>
    </message>
    <message>
        <source>&amp;Images:</source>
        <translation>&amp;Imágenes:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Tipo:</translation>
    </message>
    <message>
        <source>Folder for Images</source>
        <translation>Carpeta para las imágenes</translation>
    </message>
</context>
<context>
    <name>RegionOfInterest</name>
    <message>
        <source>region of interest</source>
        <translation>región de interés</translation>
    </message>
    <message>
        <source>The camera did not take the whole region. %1</source>
        <translation>La cámara no ha aceptado toda la región. %1</translation>
    </message>
</context>
<context>
    <name>StreamControl</name>
    <message>
        <source>%1 frames/s, %2 MB/s, %3 complete, %4 incomplete, %5 dropped</source>
        <translation>%1 imágenes/s, %2 MB/s, %3 completas, %4 incompletas, %5 descartadas</translation>
    </message>
</context>
</TS>
