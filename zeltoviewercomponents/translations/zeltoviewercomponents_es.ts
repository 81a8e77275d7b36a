<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AddressValidator</name>
    <message>
        <source>There are blanks in the address.</source>
        <translation>La dirección contiene espacios.</translation>
    </message>
    <message>
        <source>There are more than four numbers.</source>
        <translation>Hay más de cuatro números.</translation>
    </message>
    <message>
        <source>Only digits and dots are allowed.</source>
        <translation>Solo se permiten cifras y puntos.</translation>
    </message>
    <message>
        <source>Write %1 without leading zeros.</source>
        <translation>Escriba %1 sin ceros a la izquierda.</translation>
    </message>
    <message>
        <source>%1 is larger than 255.</source>
        <translation>%1 es mayor que 255.</translation>
    </message>
    <message>
        <source>Enter four numbers with dots between them.</source>
        <translation>Introduzca cuatro números separados por puntos.</translation>
    </message>
</context>
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Intervalo: %1..%2 (incremento: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Intervalo: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>Intervalo: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>Intervalo: %1..%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Intervalo: %1..%2 (incremento: %3)</translation>
    </message>
</context>
<context>
    <name>ErrorHandling</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Unexpected exception occurred</source>
        <translation>Se ha producido una excepción inesperada</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;no implementado&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;no disponible&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;no legible&gt;</translation>
    </message>
    <message>
        <source>%1: "%2" has characters outside Latin-1, which this camera cannot store.</source>
        <translation>%1: «%2» contiene caracteres fuera de Latin-1, que esta cámara no puede guardar.</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Failed to get a feature value</source>
        <translation>No se ha podido leer un parámetro</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>No se ha podido modificar un parámetro.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Failed to get the node 'Root' from the node map</source>
        <translation>No se ha podido obtener el nodo «Root» del mapa de nodos</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;Favoritos&lt;/h3&gt;&lt;b&gt;Este nodo contiene una lista de parámetros elegidos por el usuario&lt;/b&gt;&lt;br&gt;&lt;br&gt;Para añadir un parámetro, haga clic con el botón derecho en él y elija «Añadir a favoritos» en el menú contextual. También puede arrastrar y soltar parámetros para añadirlos a sus favoritos.&lt;br&gt;Los favoritos se pueden mover hacia arriba y hacia abajo en la lista, o quitar de ella, haciendo clic en ellos con el botón derecho y eligiendo la opción correspondiente del menú contextual.</translation>
    </message>
    <message>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>Añada favoritos haciendo clic con el botón derecho en un parámetro de abajo.</translation>
    </message>
    <message>
        <source>To add a feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>Para añadir un parámetro, haga clic con el botón derecho en él y elija «Añadir a favoritos» en el menú contextual. También puede arrastrar y soltar parámetros para añadirlos a sus favoritos.</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>favorito</translation>
    </message>
    <message>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2 (%3 no está disponible para la cámara actual)</translation>
    </message>
    <message>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2 (%3 no están disponibles para la cámara actual)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No search results found.</source>
        <translation>No se han encontrado resultados.</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Add to Favorites</source>
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>Sondeo</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Buscar (%1)</translation>
    </message>
    <message>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;%1 resultados (%2 de ellos visibles en un nivel de usuario superior)&lt;/B&gt;</translation>
    </message>
    <message>
        <source>The camera gave no reason.</source>
        <translation>La cámara no ha dado ningún motivo.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) found</source>
        <translation>
            <numerusform>%n parámetro encontrado</numerusform>
            <numerusform>%n parámetros encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n more at a higher level</source>
        <translation>
            <numerusform>%1, %n más en un nivel superior</numerusform>
            <numerusform>%1, %n más en un nivel superior</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <source>FeatureTreeWidget</source>
        <translation>FeatureTreeWidget</translation>
    </message>
    <message>
        <source>Show Unavailable Favorites</source>
        <translation>Mostrar favoritos no disponibles</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>S&amp;ondeo</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>Actualiza el árbol de parámetros</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Parámetros</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;no legible&gt;</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;no legible&gt;</translation>
    </message>
</context>
<context>
    <name>HelpLink</name>
    <message>
        <source>Get help</source>
        <translation>Obtener ayuda</translation>
    </message>
    <message>
        <source>The help page could not be opened.</source>
        <translation>No se ha podido abrir la página de ayuda.</translation>
    </message>
    <message>
        <source>Copy Link Location</source>
        <translation>Copiar la dirección del enlace</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>Intervalo: 0x%1..0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Intervalo: %1..%2</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;no legible&gt;</translation>
    </message>
</context>
<context>
    <name>IpAddressWidget</name>
    <message>
        <source>IP Configuration</source>
        <translation>Configuración IP</translation>
    </message>
    <message>
        <source>&amp;IP address:</source>
        <translation>Dirección &amp;IP:</translation>
    </message>
    <message>
        <source>&amp;Subnet mask:</source>
        <translation>Má&amp;scara de subred:</translation>
    </message>
    <message>
        <source>Default &amp;gateway:</source>
        <translation>&amp;Puerta de enlace predeterminada:</translation>
    </message>
    <message>
        <source>&amp;MAC address:</source>
        <translation>Dirección &amp;MAC:</translation>
    </message>
    <message>
        <source>Prefix length %1</source>
        <translation>Longitud de prefijo %1</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <source>&amp;Don't show this dialog again</source>
        <translation>&amp;No volver a mostrar este diálogo</translation>
    </message>
</context>
<context>
    <name>QIpAddressValidator</name>
    <message>
        <source>This is the broadcast address, no device can have it.</source>
        <translation>Es la dirección de difusión; ningún dispositivo puede tenerla.</translation>
    </message>
    <message>
        <source>Addresses that begin with 0 stand for no device.</source>
        <translation>Las direcciones que empiezan por 0 no designan ningún dispositivo.</translation>
    </message>
    <message>
        <source>Addresses that begin with 127 stay inside the computer.</source>
        <translation>Las direcciones que empiezan por 127 no salen del ordenador.</translation>
    </message>
    <message>
        <source>Addresses from 240.0.0.0 on are reserved.</source>
        <translation>Las direcciones a partir de 240.0.0.0 están reservadas.</translation>
    </message>
    <message>
        <source>Addresses from 224.0.0.0 on are for groups of devices (multicast).</source>
        <translation>Las direcciones a partir de 224.0.0.0 designan grupos de dispositivos (multidifusión).</translation>
    </message>
</context>
<context>
    <name>QIpAddressWithNetmaskValidator</name>
    <message>
        <source>The gateway cannot be the device itself. Enter 0.0.0.0 for none.</source>
        <translation>La puerta de enlace no puede ser el propio dispositivo. Introduzca 0.0.0.0 para no tener ninguna.</translation>
    </message>
    <message>
        <source>The gateway is not in the device's subnet. Enter 0.0.0.0 for none.</source>
        <translation>La puerta de enlace no está en la subred del dispositivo. Introduzca 0.0.0.0 para no tener ninguna.</translation>
    </message>
    <message>
        <source>With this mask, this is the address of the network itself.</source>
        <translation>Con esta máscara, es la dirección de la propia red.</translation>
    </message>
    <message>
        <source>With this mask, this is the broadcast address of the network.</source>
        <translation>Con esta máscara, es la dirección de difusión de la red.</translation>
    </message>
</context>
<context>
    <name>QIpNetmaskValidator</name>
    <message>
        <source>The mask 0.0.0.0 tells no network from another.</source>
        <translation>La máscara 0.0.0.0 no distingue una red de otra.</translation>
    </message>
    <message>
        <source>This is no mask: its ones must stand together, as in 255.255.255.0.</source>
        <translation>No es una máscara: sus unos deben ir juntos, como en 255.255.255.0.</translation>
    </message>
    <message>
        <source>Enter a number from 1 to 32 after the slash.</source>
        <translation>Introduzca un número de 1 a 32 después de la barra.</translation>
    </message>
    <message>
        <source>Only a number from 1 to 32 can follow the slash.</source>
        <translation>Solo un número de 1 a 32 puede seguir a la barra.</translation>
    </message>
</context>
<context>
    <name>QMacAddressValidator</name>
    <message>
        <source>This address is for a group of devices (multicast).</source>
        <translation>Esta dirección designa un grupo de dispositivos (multidifusión).</translation>
    </message>
    <message>
        <source>An address of nothing but zeros stands for no device.</source>
        <translation>Una dirección formada solo por ceros no designa ningún dispositivo.</translation>
    </message>
    <message>
        <source>Only the digits 0 to 9 and A to F are allowed, with colons or hyphens.</source>
        <translation>Solo se permiten las cifras de 0 a 9 y las letras de A a F, con dos puntos o guiones.</translation>
    </message>
    <message>
        <source>There are more than six numbers of two digits.</source>
        <translation>Hay más de seis números de dos cifras.</translation>
    </message>
    <message>
        <source>Enter six numbers of two digits, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>Introduzca seis números de dos cifras, por ejemplo 00:1B:2C:3D:4E:5F.</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>En curso…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminado</translation>
    </message>
</context>
<context>
    <name>NumberText</name>
    <message>
        <source>"%1" is not a number: %2</source>
        <translation>«%1» no es un número: %2</translation>
    </message>
    <message>
        <source>nothing may stand between thousands; %1</source>
        <translation>nada puede separar los millares; %1</translation>
    </message>
    <message>
        <source>the exponent is missing</source>
        <translation>falta el exponente</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>leave out the unit</source>
        <translation>omita la unidad</translation>
    </message>
    <message>
        <source>use digits, a decimal sign and an exponent as in %1</source>
        <translation>use cifras, un separador decimal y un exponente como en %1</translation>
    </message>
    <message>
        <source>use %1 as the decimal sign</source>
        <translation>use %1 como separador decimal</translation>
    </message>
    <message>
        <source>The number is not complete.</source>
        <translation>El número no está completo.</translation>
    </message>
    <message>
        <source>%1 is the maximum</source>
        <translation>%1 es el máximo</translation>
    </message>
    <message>
        <source>%1 is the minimum</source>
        <translation>%1 es el mínimo</translation>
    </message>
    <message>
        <source>%1 is the nearest value (increment: %2)</source>
        <translation>%1 es el valor más próximo (incremento: %2)</translation>
    </message>
</context>
<context>
    <name>IntSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;no legible&gt;</translation>
    </message>
</context>
<context>
    <name>IntegerText</name>
    <message>
        <source>Enter four numbers from 0 to 255 with dots between them and without leading zeros, such as 192.168.0.10.</source>
        <translation>Introduzca cuatro números de 0 a 255 separados por puntos y sin ceros a la izquierda, por ejemplo 192.168.0.10.</translation>
    </message>
    <message>
        <source>Enter six hexadecimal numbers with colons between them, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>Introduzca seis números hexadecimales separados por dos puntos, por ejemplo 00:1B:2C:3D:4E:5F.</translation>
    </message>
    <message>
        <source>Enter a hexadecimal number behind 0x, with the digits 0 to 9 and a to f.</source>
        <translation>Introduzca un número hexadecimal después de 0x, con las cifras de 0 a 9 y las letras de a a f.</translation>
    </message>
    <message>
        <source>Enter a whole number, without decimals and without separators.</source>
        <translation>Introduzca un número entero, sin decimales ni separadores.</translation>
    </message>
    <message>
        <source>Enter a whole number alone, without a unit.</source>
        <translation>Introduzca solo un número entero, sin unidad.</translation>
    </message>
    <message>
        <source>Enter a whole number.</source>
        <translation>Introduzca un número entero.</translation>
    </message>
    <message>
        <source>The limits of this feature contradict each other, so that no number fits.</source>
        <translation>Los límites de este parámetro se contradicen: ningún número es válido.</translation>
    </message>
    <message>
        <source>%1 is the next value below, in steps of %2</source>
        <translation>%1 es el valor inmediatamente inferior, en pasos de %2</translation>
    </message>
    <message>
        <source>This value was refused.</source>
        <translation>Este valor ha sido rechazado.</translation>
    </message>
</context>
<context>
    <name>FeatureSettings</name>
    <message>
        <source>%1: it is a directory</source>
        <translation>%1: es un directorio</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>longer than %1 KiB</source>
        <translation>de más de %1 KiB</translation>
    </message>
    <message>
        <source>a file of more than %1 MiB holds no camera settings</source>
        <translation>un archivo de más de %1 MiB no contiene ajustes de cámara</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>this is no UTF-8 text</source>
        <translation>no es un texto UTF-8</translation>
    </message>
    <message>
        <source>"%1" is no name of a feature</source>
        <translation>«%1» no es el nombre de un parámetro</translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation>%1 no tiene valor</translation>
    </message>
    <message>
        <source>there are more than %1 values</source>
        <translation>hay más de %1 valores</translation>
    </message>
</context>
<context>
    <name>SettingsReading</name>
    <message>
        <source>%1 makes more than %2 combinations; only the present one is read</source>
        <translation>%1 da más de %2 combinaciones; solo se lee la actual</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; only the present one is read</source>
        <translation>%1 selecciona entre más de %2 valores; solo se lee el actual</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; what it selects is left out</source>
        <translation>%1 selecciona entre más de %2 valores; lo que selecciona se omite</translation>
    </message>
    <message>
        <source>%1=%2 cannot be chosen: %3</source>
        <translation>%1=%2 no se puede elegir: %3</translation>
    </message>
    <message>
        <source>%1 cannot be put back to %2: %3</source>
        <translation>%1 no se puede devolver a %2: %3</translation>
    </message>
</context>
<context>
    <name>SettingsApplying</name>
    <message>
        <source>%1 is no feature that has a value</source>
        <translation>%1 no es un parámetro que tenga un valor</translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message numerus="yes">
        <source>%n set</source>
        <translation>
            <numerusform>%n modificado</numerusform>
            <numerusform>%n modificados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n sin cambios</numerusform>
            <numerusform>%n sin cambios</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n rechazado</numerusform>
            <numerusform>%n rechazados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n ausente</numerusform>
            <numerusform>%n ausentes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n read back differently</source>
        <translation>
            <numerusform>%n leído de forma distinta</numerusform>
            <numerusform>%n leídos de forma distinta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not tried</source>
        <translation>
            <numerusform>%n no intentado</numerusform>
            <numerusform>%n no intentados</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost: %1.</source>
        <translation>Se ha perdido la cámara: %1.</translation>
    </message>
    <message>
        <source>Cancelled: %1.</source>
        <translation>Cancelado: %1.</translation>
    </message>
    <message>
        <source>Done: %1.</source>
        <translation>Terminado: %1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>set</source>
        <translation>modificado</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>sin cambios</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>rechazado: %1</translation>
    </message>
    <message>
        <source>the camera has no such feature</source>
        <translation>la cámara no tiene ese parámetro</translation>
    </message>
    <message>
        <source>"%1" was written, "%2" is read back</source>
        <translation>se ha escrito «%1» y se lee «%2»</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>no intentado</translation>
    </message>
</context>
<context>
    <name>SettingsProgress</name>
    <message>
        <source>Starting…</source>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 de %2: %3</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
</context>
<context>
    <name>SettingsReportDialog</name>
    <message>
        <source>Settings Loaded</source>
        <translation>Ajustes cargados</translation>
    </message>
    <message>
        <source>Show &amp;all features</source>
        <translation>Mostrar &amp;todos los parámetros</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>Solicitado</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Put Back What Was Before</source>
        <translation>&amp;Restablecer lo anterior</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
</context>
<context>
    <name>ChangeHistory</name>
    <message>
        <source>Failed to undo a change.</source>
        <translation>No se ha podido deshacer un cambio.</translation>
    </message>
    <message>
        <source>Failed to redo a change.</source>
        <translation>No se ha podido rehacer un cambio.</translation>
    </message>
    <message>
        <source>%1: the feature is gone</source>
        <translation>%1: el parámetro ya no existe</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>No se ha podido modificar un parámetro.</translation>
    </message>
    <message>
        <source>values set: %1</source>
        <translation>valores modificados: %1</translation>
    </message>
</context>
<context>
    <name>ChangeHistoryWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>&amp;Ir al parámetro</translation>
    </message>
    <message>
        <source>Put &amp;Back the Value Before</source>
        <translation>Volver al valor &amp;anterior</translation>
    </message>
    <message>
        <source>Set the Value &amp;After Again</source>
        <translation>Volver al valor &amp;posterior</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Save as Text…</source>
        <translation>&amp;Guardar como texto…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>What was changed since the camera was opened</source>
        <translation>Lo que se ha cambiado desde que se abrió la cámara</translation>
    </message>
    <message>
        <source>Search changes</source>
        <translation>Buscar en los cambios</translation>
    </message>
    <message>
        <source>Save Changes as Text</source>
        <translation>Guardar los cambios como texto</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Archivos de texto (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>ChangeList</name>
    <message>
        <source>refused: %1</source>
        <translation>rechazado: %1</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>deshecho</translation>
    </message>
    <message>
        <source>executed</source>
        <translation>ejecutado</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
</context>
<context>
    <name>DifferenceList</name>
    <message>
        <source>no value</source>
        <translation>sin valor</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aquí</translation>
    </message>
    <message>
        <source>There</source>
        <translation>Allí</translation>
    </message>
</context>
<context>
    <name>SettingsComparisonWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>&amp;Ir al parámetro</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Take Over &amp;All</source>
        <translation>Aplicar &amp;todo</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>&amp;Comparar de nuevo</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Diferencias</translation>
    </message>
    <message>
        <source>In what the camera differs from a file, another camera or how it was</source>
        <translation>En qué difiere la cámara de un archivo, de otra cámara o de como estaba</translation>
    </message>
    <message>
        <source>Sets the values from there that are selected</source>
        <translation>Aplica los valores de allí que están seleccionados</translation>
    </message>
    <message>
        <source>Sets all values from there that are shown</source>
        <translation>Aplica todos los valores de allí que se muestran</translation>
    </message>
    <message>
        <source>Search differences</source>
        <translation>Buscar en las diferencias</translation>
    </message>
    <message>
        <source>No difference from %1</source>
        <translation>Ninguna diferencia con %1</translation>
    </message>
    <message>
        <source>Differences from %1</source>
        <translation>Diferencias con %1</translation>
    </message>
    <message>
        <source>Nothing is compared.</source>
        <translation>No se compara nada.</translation>
    </message>
    <message>
        <source>&amp;Different (%1)</source>
        <translation>&amp;Distintos (%1)</translation>
    </message>
    <message>
        <source>Only &amp;here (%1)</source>
        <translation>Solo a&amp;quí (%1)</translation>
    </message>
    <message>
        <source>Only th&amp;ere (%1)</source>
        <translation>Solo a&amp;llí (%1)</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
</context>
</TS>
