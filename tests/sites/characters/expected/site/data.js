<!-- Web Generada con Lumenta--> 



['É"&<\'>','B\\'' ] ['¿L\'Hospitalet? “Nº 1”','ikov ?' ] ['0','1' ] ['1-aaeeiiioouuun-a-b-c-d-e-f','2-u-?' ]
['5 € – «ñ» ?',] ['Grande “G”',] ['ÁÀÉÈÍÌÏÓÒÚÙÜÑ a/b\c.d e&#39f','Ü ?' ] ['uno
dos &#39tres&#39 "cuatro" \ <b>&</b>','%%SHORTDESC%%' ] ['544','FFFFFFFE1' ]