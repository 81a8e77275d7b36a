<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Cameras::Camera</name>
    <message>
        <source>it is a directory</source>
        <translation>es un directorio</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Transport Layer</source>
        <translation>Capa de transporte</translation>
    </message>
    <message>
        <source>Stream Grabber</source>
        <translation>Captura del flujo</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>No se puede abrir %1: %2</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>la cámara integrada</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>la cámara %1</translation>
    </message>
</context>
<context>
    <name>Cameras::Description</name>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>no se permiten declaraciones de tipo de documento</translation>
    </message>
    <message>
        <source>this is no camera description</source>
        <translation>no es una descripción de cámara</translation>
    </message>
    <message>
        <source>the description has no category "Root"</source>
        <translation>la descripción no tiene la categoría «Root»</translation>
    </message>
    <message>
        <source>a text is longer than %1 characters</source>
        <translation>un texto tiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>elements nest more than %1 deep</source>
        <translation>hay elementos anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>hay más de %1 elementos</translation>
    </message>
    <message>
        <source>there are more than %1 nodes</source>
        <translation>hay más de %1 nodos</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) of %1 not read: one may take %2 evaluations, all together %3 (%4)</source>
        <translation>
            <numerusform>no se lee %n parámetro de %1: uno puede requerir %2 evaluaciones, y todos juntos %3 (%4)</numerusform>
            <numerusform>no se leen %n parámetros de %1: uno puede requerir %2 evaluaciones, y todos juntos %3 (%4)</numerusform>
        </translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>los registros ocupan más de %1 MiB</translation>
    </message>
</context>
<context>
    <name>Cameras::Engine</name>
    <message>
        <source>the engine cannot read the description</source>
        <translation>el motor no puede leer la descripción</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3</source>
        <translation>%1: «%2» no está permitido, se espera %3</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 no se puede escribir ahora</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un número entero</translation>
    </message>
    <message>
        <source>an integer of at most 64 bits</source>
        <translation>un número entero de 64 bits como máximo</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un número</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true, false, 1 o 0</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>ningún texto</translation>
    </message>
    <message>
        <source>%1: "%2" is out of range, allowed are %3 to %4</source>
        <translation>%1: «%2» está fuera del intervalo permitido, de %3 a %4</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1: «%2» no está permitido, se espera %3 más un múltiplo de %4</translation>
    </message>
    <message>
        <source>no null characters</source>
        <translation>ningún carácter nulo</translation>
    </message>
    <message>
        <source>at most %1 bytes</source>
        <translation>como máximo %1 bytes</translation>
    </message>
    <message>
        <source>an integer, such as 0x1f</source>
        <translation>un número entero, por ejemplo 0x1f</translation>
    </message>
    <message>
        <source>four numbers from 0 to 255, such as 192.168.0.10</source>
        <translation>cuatro números de 0 a 255, por ejemplo 192.168.0.10</translation>
    </message>
    <message>
        <source>six hexadecimal numbers, such as 00:1B:2C:3D:4E:5F</source>
        <translation>seis números hexadecimales, por ejemplo 00:1B:2C:3D:4E:5F</translation>
    </message>
    <message>
        <source>a subnet mask, whose ones stand together, such as 255.255.255.0</source>
        <translation>una máscara de subred cuyos unos van juntos, por ejemplo 255.255.255.0</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (no disponible)</translation>
    </message>
    <message>
        <source>%1 is not read: the registers would take more than %2 MiB</source>
        <translation>%1 no se lee: los registros ocuparían más de %2 MiB</translation>
    </message>
</context>
<context>
    <name>Cameras::NodeProperties</name>
    <message>
        <source>%1: "%2" is no %3, expected %4</source>
        <translation>%1: «%2» no es un valor de %3, se espera %4</translation>
    </message>
    <message>
        <source>%1: the property "%2" cannot be imposed, only Visibility and AccessMode can</source>
        <translation>%1: la propiedad «%2» no se puede imponer; solo Visibility y AccessMode</translation>
    </message>
</context>
<context>
    <name>Cameras::RegisterImage</name>
    <message>
        <source>line %1: expected an address and bytes in hexadecimal digits</source>
        <translation>línea %1: se esperan una dirección y bytes en cifras hexadecimales</translation>
    </message>
    <message>
        <source>there are more than %1 lines</source>
        <translation>hay más de %1 líneas</translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>los registros ocupan más de %1 MiB</translation>
    </message>
</context>
<context>
    <name>Cameras::Session</name>
    <message>
        <source>no answer in time</source>
        <translation>sin respuesta a tiempo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The camera was closed.</source>
        <translation>La cámara se ha cerrado.</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>La cámara no responde.</translation>
    </message>
    <message>
        <source>the camera is open read-only</source>
        <translation>la cámara está abierta en modo de solo lectura</translation>
    </message>
    <message>
        <source>%1: the camera did not answer in time, so it is not known whether this was written</source>
        <translation>%1: la cámara no ha respondido a tiempo, por lo que no se sabe si se ha escrito</translation>
    </message>
    <message>
        <source>%1: not written, since the camera was busy for a second</source>
        <translation>%1: no se ha escrito, porque la cámara ha estado ocupada durante un segundo</translation>
    </message>
    <message>
        <source>%1 Whether the last change of %2 has arrived is not known.</source>
        <translation>%1 No se sabe si ha llegado el último cambio de %2.</translation>
    </message>
    <message>
        <source>the system has no thread left</source>
        <translation>el sistema no tiene más hilos disponibles</translation>
    </message>
    <message>
        <source>No more images come, since another program controls the camera.</source>
        <translation>No llegan más imágenes, porque otro programa controla la cámara.</translation>
    </message>
    <message>
        <source>No images can be had: %1</source>
        <translation>No se pueden obtener imágenes: %1</translation>
    </message>
</context>
<context>
    <name>Cameras::DescriptionArchive</name>
    <message>
        <source>the file is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>the archive holds no camera description</source>
        <translation>el archivo comprimido no contiene ninguna descripción de cámara</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>el archivo comprimido está dañado</translation>
    </message>
</context>
<context>
    <name>Cameras::EngineFailure</name>
    <message>
        <source>the camera does not answer</source>
        <translation>la cámara no responde</translation>
    </message>
    <message>
        <source>the camera is not connected</source>
        <translation>la cámara no está conectada</translation>
    </message>
    <message>
        <source>there is no such camera</source>
        <translation>esa cámara no existe</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>la cámara no proporciona una descripción de sus parámetros</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>otro programa controla la cámara</translation>
    </message>
    <message>
        <source>the camera denies the access</source>
        <translation>la cámara deniega el acceso</translation>
    </message>
    <message>
        <source>the camera protects it from being written</source>
        <translation>la cámara lo protege contra escritura</translation>
    </message>
    <message>
        <source>the camera is busy</source>
        <translation>la cámara está ocupada</translation>
    </message>
    <message>
        <source>the camera has no such register</source>
        <translation>la cámara no tiene ese registro</translation>
    </message>
    <message>
        <source>the camera does not accept the value</source>
        <translation>la cámara no acepta el valor</translation>
    </message>
    <message>
        <source>the camera does not support it</source>
        <translation>la cámara no lo admite</translation>
    </message>
    <message>
        <source>the camera refuses</source>
        <translation>la cámara lo rechaza</translation>
    </message>
    <message>
        <source>the value is out of range</source>
        <translation>el valor está fuera del intervalo</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>solo se puede leer</translation>
    </message>
    <message>
        <source>there is no such entry</source>
        <translation>esa entrada no existe</translation>
    </message>
    <message>
        <source>the length does not fit</source>
        <translation>la longitud no es la adecuada</translation>
    </message>
    <message>
        <source>the camera's description of it is not usable</source>
        <translation>la descripción que da la cámara no se puede utilizar</translation>
    </message>
    <message>
        <source>the connection to the camera failed</source>
        <translation>ha fallado la conexión con la cámara</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveCamera</name>
    <message>
        <source>there is no such camera</source>
        <translation>esa cámara no existe</translation>
    </message>
    <message>
        <source>no camera answers at %1</source>
        <translation>ninguna cámara responde en %1</translation>
    </message>
    <message>
        <source>%1 is in none of this computer's subnets</source>
        <translation>%1 no está en ninguna subred de este ordenador</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>la cámara no proporciona una descripción de sus parámetros</translation>
    </message>
    <message>
        <source>The camera %1 does not answer.</source>
        <translation>La cámara %1 no responde.</translation>
    </message>
    <message>
        <source>The camera at %1 does not answer.</source>
        <translation>La cámara en %1 no responde.</translation>
    </message>
    <message>
        <source>held by another program</source>
        <translation>ocupada por otro programa</translation>
    </message>
    <message>
        <source>held by another program at %1</source>
        <translation>ocupada por otro programa en %1</translation>
    </message>
    <message>
        <source>The camera at %1 answers again.</source>
        <translation>La cámara en %1 vuelve a responder.</translation>
    </message>
    <message>
        <source>Another camera answers at %1: serial number %2.</source>
        <translation>En %1 responde otra cámara: número de serie %2.</translation>
    </message>
    <message>
        <source>the camera's description cannot be read from %1</source>
        <translation>no se puede leer la descripción de la cámara en %1</translation>
    </message>
    <message>
        <source>the camera at %1 answers, but does not let itself be read</source>
        <translation>la cámara en %1 responde, pero no se deja leer</translation>
    </message>
</context>
<context>
    <name>Cameras::FrameSource</name>
    <message>
        <source>The camera has sent as many images as AcquisitionMode asks for.</source>
        <translation>La cámara ha enviado tantas imágenes como pide AcquisitionMode.</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveSource</name>
    <message>
        <source>the camera does not tell how large they are (PayloadSize)</source>
        <translation>la cámara no indica qué tamaño tienen (PayloadSize)</translation>
    </message>
    <message>
        <source>the camera tells that they have %1 bytes (PayloadSize)</source>
        <translation>la cámara indica que tienen %1 bytes (PayloadSize)</translation>
    </message>
    <message>
        <source>the camera has no stream</source>
        <translation>la cámara no tiene ningún flujo</translation>
    </message>
    <message>
        <source>The payload is of the kind %1 and holds no image.</source>
        <translation>La carga útil es de la clase %1 y no contiene ninguna imagen.</translation>
    </message>
    <message>
        <source>The payload has %1 parts, of which this is number %2.</source>
        <translation>La carga útil tiene %1 partes; esta es la número %2.</translation>
    </message>
    <message>
        <source>Chunk data came with the image.</source>
        <translation>Con la imagen han llegado datos chunk.</translation>
    </message>
    <message>
        <source>The image is larger than the camera told (PayloadSize).</source>
        <translation>La imagen es mayor de lo que ha indicado la cámara (PayloadSize).</translation>
    </message>
    <message>
        <source>Packets are missing: %1.</source>
        <translation>Faltan paquetes: %1.</translation>
    </message>
    <message>
        <source>A part is missing.</source>
        <translation>Falta una parte.</translation>
    </message>
</context>
<context>
    <name>Cameras::ReceivedFrame</name>
    <message>
        <source>The camera tells of an image of %1 x %2 pixels.</source>
        <translation>La cámara anuncia una imagen de %1 x %2 píxeles.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes are missing.</source>
        <translation>Faltan %1 de %2 bytes.</translation>
    </message>
</context>
<context>
    <name>Cameras::SimulatedImage</name>
    <message>
        <source>The simulated camera makes no images in the pixel format %1.</source>
        <translation>La cámara simulada no genera imágenes en el formato de píxel %1.</translation>
    </message>
    <message>
        <source>The simulated camera makes no images of %1 x %2 pixels.</source>
        <translation>La cámara simulada no genera imágenes de %1 x %2 píxeles.</translation>
    </message>
</context>
</TS>
